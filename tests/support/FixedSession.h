// A user and a time that stand still for the length of a test.
#pragma once

#include "platform/Session.h"

class FixedSession {
public:
    FixedSession(const CString& user, const COleDateTime& now) { FixSession(user, now); }
    ~FixedSession() { FixSession({}, {}); }
    FixedSession(const FixedSession&) = delete;
    FixedSession& operator=(const FixedSession&) = delete;
};
