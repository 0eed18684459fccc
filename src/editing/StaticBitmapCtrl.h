// A picture of the language library, sharp on every screen.
#pragma once

#include "platform/LanguageLibrary.h"

#include <QPixmap>
#include <QWidget>

class CStaticBitmapCtrl : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    // A bitmap or an icon; a number of 0 shows nothing. `name` says what the picture shows.
    void SetPicture(ImageType type, unsigned id, const CString& name);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap Picture() const;

    ImageType m_type = ImageType::Bitmap;
    unsigned m_id = 0;
};
