#include "platform/widgets/FontHelper.h"

#include "platform/SettingsValue.h"

namespace {

constexpr char HostKey[] = R"(Software\Kortavo\Kortavo 2026\General)";

bool IsHostEnglish() {
    CIntValue value("Use English language", 0);
    value.Read({SettingsRoot::CurrentUser, HostKey});
    return value.Value != 0;
}

} // namespace

fontHelperImpl_c::fontHelperImpl_c(QLocale::Language userLanguage)
    : m_face(userLanguage == QLocale::Japanese && !IsHostEnglish() ? "Tahoma" : "Segoe UI") {}

const CString& fontHelper_c::GetFace() const {
    static const fontHelperImpl_c face(QLocale::system().language());
    return face.GetFace();
}
