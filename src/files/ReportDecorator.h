// Turns the stored form of a document into the report form: what a parameter stores as a number gets the
// text, colour or picture by which a reader knows it.
#pragma once

#include "engines/EnumEngine.h"
#include "files/XmlDocument.h"
#include "model/GrowArray.h"

// Works on the current document. Besides a standard it takes a checker's result document, in which a check
// holds `Result` elements with the checks as they were found.
class ReportDecorator {
public:
    // `images` holds the numbers of the pictures that are listed already, and takes the new ones.
    ReportDecorator(int lengthUnit, int angleUnit, CGrowArray<unsigned long>& images);

    // Appends the list of pictures to the root and decorates the root's checks.
    void Decorate();

private:
    // Where an element stands: what it is compared with, and whether values tell their comparison.
    struct Context {
        const CXmlElement* expected = nullptr;
        bool labels = true;
    };
    struct Parameter; // what is known of the parameter whose values are decorated

    void DecorateCheck(CXmlElement& check, const Context& context);
    void DecorateChild(CXmlElement& child, CXmlElement& parent, const Context& context);
    void DecorateResult(CXmlElement& result, CXmlElement& check);
    void DecorateParameter(CXmlElement& element, const CXmlElement& check, const Context& context);
    void ShowValues(CXmlElement& element, const Parameter& parameter);
    void MergeRange(CXmlElement& element, const Parameter& parameter, CXmlNodeList& values) const;
    void DecorateValue(CXmlElement& value, const Parameter& parameter);
    void ShowPicture(CXmlElement& value, const Parameter& parameter, const CString& text);
    void DecorateCorrection(CXmlElement& element, const Parameter& parameter);
    // Lists the picture of a code under its label. Result: the picture's number.
    unsigned long AddImageOf(const Parameter& parameter, const CString& text, const CString& label);
    void AddImage(const CString& label, unsigned long id);

    CString TextOfCode(const Parameter& parameter, const CString& text) const;
    CString MeasuredText(const Parameter& parameter, const CString& text) const;

    CEnumEngine m_engine;
    unsigned long m_lengthUnit;
    unsigned long m_angleUnit;
    CGrowArray<unsigned long>& m_images;
    std::unique_ptr<CXmlElement> m_imageList;
};
