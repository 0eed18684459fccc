// The page of a report as a laid-out text.
#pragma once

#include "platform/Text.h"

#include <QByteArray>
#include <QTextDocument>

// Shows no picture but the bitmaps of its report: a name that leads anywhere else shows an empty spot.
class ReportDocument : public QTextDocument {
public:
    // Pictures are those in the folder "resources" of `baseFolder`.
    explicit ReportDocument(const CString& baseFolder);

    // Quickest when paper and width are set before: each change of them is a new layout.
    void ShowPage(const QByteArray& html);

protected:
    QVariant loadResource(int type, const QUrl& name) override;

private:
    CString PicturePath(const QUrl& name) const;

    CString m_resources; // the true path of the folder of the pictures; empty where there is none
};
