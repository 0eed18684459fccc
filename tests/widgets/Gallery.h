// Every kind of control in its states, as the tool's windows use them: to be looked at, and to be measured.
// With RULEWARD_PICTURES set to a folder, each window that is shown here is also saved there as a picture.
#pragma once

#include "platform/Text.h"

#include <QImage>
#include <QWidget>
#include <memory>

std::unique_ptr<QWidget> MakeGallery();

// The window as it looks, saved as "<name>.png" where pictures are asked for.
QImage Picture(QWidget& window, const CString& name);
