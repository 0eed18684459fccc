// A text as it stands, never read as markup, and told in full where its column cuts it.
#pragma once

#include <QLabel>

class CExACStatic : public QLabel {
    Q_OBJECT

public:
    explicit CExACStatic(QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    bool IsCut() const;
};
