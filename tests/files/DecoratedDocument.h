// A document made from a text and decorated as a report, with what a test asks of it.
#pragma once

#include "files/ReportDecorator.h"
#include "platform/Format.h"

class DecoratedDocument {
public:
    explicit DecoratedDocument(const CString& xml, int lengthUnit = 0, int angleUnit = 0) {
        const CurrentXmlDocument current(m_document);
        m_document.LoadXmlText(xml);
        ReportDecorator(lengthUnit, angleUnit, images).Decorate();
    }

    // Of the first element that an XPath expression selects; "(none)" where there is none.
    CString Text(const char* path) const {
        CString text = "(none)";
        if (const auto element = m_document.Root->SelectSingleNode(path))
            element->GetText(text);
        return text;
    }
    CString Attribute(const char* path, const char* name) const {
        CString text = "(none)";
        if (const auto element = m_document.Root->SelectSingleNode(path))
            element->GetAttribute(name, text);
        return text;
    }
    int Count(const char* path) const { return m_document.Root->SelectNodes(path).GetCount(); }
    CString Xml() const { return m_document.GetXmlText(); }

    CGrowArray<unsigned long> images;

private:
    CXmlDocument m_document;
};

// A `Parameter` element with its values.
inline CString ParameterXml(int type, int op, const CStringArray& values, const CString& correction = {},
                            const CString& name = "P") {
    CString xml = "<Parameter Name='" + name + "' Type='1' CorrectionValue='" + correction + "'><Operator>" +
                  FormatInt(op) + "</Operator><ParameterType>" + FormatInt(type) + "</ParameterType>";
    for (const CString& value : values)
        xml += "<Value>" + value + "</Value>";
    return xml + "<Remarks/></Parameter>";
}

// A standard's root with one check that can be corrected.
inline CString StandardXml(const CString& parameters) {
    return "<Standard><Check Type='312' Name='C' Criticality='1' IsACSupported='1'>" + parameters +
           "</Check></Standard>";
}
