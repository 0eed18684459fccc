// A preview: a picture as large as its frame allows, its sides in proportion.
#pragma once

#include "platform/Text.h"

#include <QImage>
#include <QWidget>

class CPictureCtrl : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    void SetPicture(const QImage& picture);

    // False, with nothing shown, where the file cannot be read as a picture.
    bool SetPictureFile(const CString& path);

    bool HasPicture() const { return !m_picture.isNull(); }

    QSize sizeHint() const override { return {160, 120}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage m_picture;
};
