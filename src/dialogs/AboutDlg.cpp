#include "dialogs/AboutDlg.h"

#include "files/StandardFile.h"
#include "platform/LanguageLibrary.h"
#include "platform/TextNumbers.h"
#include "platform/widgets/Look.h"

#include <QLabel>
#include <QLayout>
#include <QPalette>
#include <QPixmap>

namespace {

constexpr unsigned TemplateNumber = 100;
constexpr unsigned ProgramIcon = 128;
constexpr int PictureScale = 2;
constexpr int NamePoints = 14;

enum Control { OkButton = 1, PictureLabel = 1000, NameLabel = 1001, VersionLabel = 1002 };

} // namespace

CAboutDlg::CAboutDlg(QWidget* parent) : QDialog(parent), ControlHost(static_cast<QWidget&>(*this)) {
    LoadTemplate(TemplateNumber);
    Connect(OkButton, ControlEvent::Clicked, [this] { accept(); });
    if (auto* picture = GetDlgItem<QLabel>(PictureLabel)) {
        const qreal ratio = devicePixelRatioF();
        QPixmap pixmap = QPixmap::fromImage(LoadImageOf(ImageType::Icon, ProgramIcon, PictureScale * ratio));
        pixmap.setDevicePixelRatio(ratio);
        picture->setPixmap(pixmap);
    }
    if (auto* name = GetDlgItem<QLabel>(NameLabel)) {
        QFont font = Look::WindowFont();
        font.setPointSize(NamePoints);
        font.setBold(true);
        name->setFont(font);
        QPalette palette = name->palette();
        palette.setColor(QPalette::WindowText, QColor(Look::Heading));
        name->setPalette(palette);
    }
    if (auto* version = GetDlgItem<QLabel>(VersionLabel))
        version->setText(LoadString(AboutVersion).arg(ToolVersion));
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}
