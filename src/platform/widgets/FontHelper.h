// The face of every page and pane: "Segoe UI". Only where the user's own language is Japanese it is "Tahoma",
// unless the host is set to English.
#pragma once

#include "platform/Text.h"

#include <QLocale>

class fontHelperImpl_c {
public:
    // Reads the host's setting where the language asks for it.
    explicit fontHelperImpl_c(QLocale::Language userLanguage);

    const CString& GetFace() const { return m_face; }

private:
    CString m_face;
};

// Answers for the user who runs the tool; the rule is asked once in a run.
class fontHelper_c {
public:
    const CString& GetFace() const;
};
