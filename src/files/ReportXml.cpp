// The report form of a standard.
#include "files/ReportDecorator.h"
#include "files/StandardTree.h"

const CString& CStandard::BuildReportXml() {
    CXmlDocument document;
    const CurrentXmlDocument current(document);
    BuildStandardTree(document, *this);
    ReportDecorator(Unit, AngularUnit, ReportImages).Decorate();
    ReportXml = document.GetXmlText();
    return ReportXml;
}
