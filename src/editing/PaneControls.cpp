#include "editing/PaneControls.h"

#include "editing/BoxPanel.h"
#include "editing/ChoiceList.h"
#include "editing/ComboBoxExt.h"
#include "editing/ExtRichEditCtrl.h"
#include "editing/FileList.h"
#include "editing/FolderList.h"
#include "editing/FontList.h"
#include "editing/GroupBoxExt.h"
#include "editing/MyStatic.h"
#include "editing/NumberSpin.h"
#include "editing/PaneLabels.h"
#include "editing/PictureBox.h"
#include "platform/widgets/TemplateLoader.h"

namespace {

template <class Control> void Register(const char* name) {
    RegisterControlClass(name, [](QWidget* parent) -> QWidget* { return new Control(parent); });
}

bool RegisterAll() {
    Register<CBoxPanel>("CBoxPanel");
    Register<CChoiceList>("CChoiceList");
    Register<CComboBoxExt>("CComboBoxExt");
    Register<CExtRichEditCtrl>("CExtRichEditCtrl");
    Register<CFontList>("CFontList");
    Register<FileList>("FileList");
    Register<FolderList>("FolderList");
    Register<CGroupBoxExt>("CGroupBoxExt");
    Register<CFaintLine>("CFaintLine");
    Register<CHeading>("CHeading");
    Register<CHint>("CHint");
    Register<CMyStatic>("CMyStatic");
    Register<CNumberSpin>("CNumberSpin");
    Register<CPictureBox>("CPictureBox");
    return true;
}

} // namespace

void RegisterPaneControls() {
    [[maybe_unused]] static const bool isDone = RegisterAll();
}
