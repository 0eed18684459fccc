// Which class of pane edits which check of the catalogue.
#pragma once

#include "editing/ExtDialog.h"
#include "model/Catalogue.h"

#include <memory>

// A new pane without its window; null for a class that is not known.
std::unique_ptr<CExtDialog> MakePane(EditingHost& host, const PageCheckRow& row);
