// The controls of this program's own that the templates of panes name.
#pragma once

// To be called before the first template is read; further calls do nothing.
void RegisterPaneControls();
