// The language library: every text and picture of the tool, keyed by type and number.
// One binary resource file per language, "Lang/<language>/Rulewardresu.rcc" beside the program.
// Used from the user-interface thread only, but for LoadString, which other threads may call as well while the
// language stays the same.
#pragma once

#include "platform/Text.h"

#include <QByteArray>
#include <QImage>

// The path of the library of `language` under `moduleFolder`, without regard to the case of the
// language's name; that of the English one where the language has no folder. The file may be missing.
CString ResolveLanguageLibrary(const CString& moduleFolder, const CString& language);

// Loads the library of `language` over the English one: what it lacks is shown in English.
// False where the English library cannot be read; nothing is in force then. A second call replaces the first.
bool LoadLanguage(const CString& moduleFolder, const CString& language);

// The name of the language whose texts are in force, as its folder is called; empty before LoadLanguage.
CString LoadedLanguage();

// The text of a number, or the empty text where the library has none. Texts with an id of another kind, such as
// "1541.1005" for a caption inside a template, are had through Qt's own translation by id.
CString LoadString(unsigned id);

// The source of a window's layout, empty where there is none.
QByteArray LoadTemplateSource(unsigned number);

// The kinds of picture; one number may name a picture of each kind.
enum class ImageType { Bitmap, Icon, Toolbar, Cursor };

// The SVG source of a picture, empty where there is none.
QByteArray LoadImageSource(ImageType type, unsigned id);

// A picture drawn at `scale` times its own size on a transparent ground; a null image where there is none.
QImage LoadImageOf(ImageType type, unsigned id, qreal scale = 1.0);
