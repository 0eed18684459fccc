#include "platform/widgets/Look.h"

#include "platform/widgets/FontHelper.h"
#include "platform/widgets/RulewardStyle.h"

#include <QApplication>
#include <QFontDatabase>

namespace {

constexpr int PagePoints = 8;
constexpr int WindowPoints = 9;

QFont OwnFont(int points) {
    static const CString face = [] {
        const CString wanted = fontHelper_c().GetFace();
        return QFontDatabase::hasFamily(wanted)
                   ? wanted
                   : QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
    }();
    return QFont(face, points);
}

} // namespace

namespace Look {

QFont PageFont() {
    return OwnFont(PagePoints);
}

QFont WindowFont() {
    return OwnFont(WindowPoints);
}

void ApplyTo(QApplication& application) {
    application.setStyle(new RulewardStyle);
    application.setPalette(RulewardStyle::LightPalette());
    application.setFont(WindowFont());
}

} // namespace Look
