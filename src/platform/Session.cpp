#include "platform/Session.h"

#include <array>
#include <pwd.h>
#include <unistd.h>

namespace {

CString fixedUser;
COleDateTime fixedNow;

} // namespace

CString SessionUser() {
    if (!fixedUser.isEmpty())
        return fixedUser;
    std::array<char, 4096> buffer;
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found)
        return QString::fromLocal8Bit(found->pw_name);
    return qEnvironmentVariable("USER");
}

COleDateTime SessionNow() {
    return fixedNow.isValid() ? fixedNow : QDateTime::currentDateTime();
}

void FixSession(const CString& user, const COleDateTime& now) {
    fixedUser = user;
    fixedNow = now;
}
