#include "platform/LanguageLibrary.h"

#include "platform/PackCheck.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QPainter>
#include <QResource>
#include <QSvgRenderer>
#include <QTranslator>
#include <memory>
#include <mutex>

namespace {

// One registered pack with its texts.
struct Pack {
    CString file;
    CString language; // as its folder is called
    CString root;     // where its content begins, with the slash
    QTranslator texts;

    ~Pack() {
        if (QCoreApplication::instance())
            QCoreApplication::removeTranslator(&texts);
        QResource::unregisterResource(file);
    }
};

struct Library {
    std::unique_ptr<Pack> english;
    std::unique_ptr<Pack> user; // null while English is the user's language
    QHash<unsigned, CString> cache;
};

Library& Current() {
    static Library library;
    return library;
}

// The folder of `parent` whose name is `name` but for case, or an empty text.
CString FindFolderAnyCase(const CString& parent, const CString& name) {
    const QStringList folders = QDir(parent).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const CString& folder : folders)
        if (folder.compare(name, Qt::CaseInsensitive) == 0)
            return folder;
    return {};
}

bool IsWholeFile(const CString& file) {
    QFile pack(file);
    if (!pack.open(QIODevice::ReadOnly))
        return false;
    const uchar* bytes = pack.map(0, pack.size());
    return bytes && IsWholePack(QByteArrayView(bytes, pack.size()));
}

std::unique_ptr<Pack> OpenPack(const CString& file) {
    if (!IsWholeFile(file) || !QResource::registerResource(file))
        return nullptr;
    auto pack = std::make_unique<Pack>();
    pack->file = file;
    pack->language = QFileInfo(file).dir().dirName();
    // The folder may be written in another case than the name inside the pack.
    pack->root = ":/" + FindFolderAnyCase(":/", pack->language) + "/";
    if (!pack->texts.load(pack->root + "strings.qm"))
        return nullptr;
    // For the texts inside templates. The one installed last is asked first.
    if (QCoreApplication::instance())
        QCoreApplication::installTranslator(&pack->texts);
    return pack;
}

CString TextOf(const Pack& pack, unsigned id) {
    return pack.texts.translate(nullptr, QByteArray::number(id).constData());
}

const char* FolderOf(ImageType type) {
    switch (type) {
    case ImageType::Bitmap: return "bitmap";
    case ImageType::Icon: return "icon";
    case ImageType::Toolbar: return "toolbar";
    case ImageType::Cursor: return "cursor";
    }
    return "";
}

} // namespace

CString ResolveLanguageLibrary(const CString& moduleFolder, const CString& language) {
    const CString parent = moduleFolder + "/Lang";
    CString folder = FindFolderAnyCase(parent, language);
    if (folder.isEmpty())
        folder = FindFolderAnyCase(parent, "english");
    return parent + "/" + (folder.isEmpty() ? CString("english") : folder) + "/Rulewardresu.rcc";
}

bool LoadLanguage(const CString& moduleFolder, const CString& language) {
    Library& library = Current();
    library = Library();
    const CString englishFile = ResolveLanguageLibrary(moduleFolder, "English");
    const CString userFile = ResolveLanguageLibrary(moduleFolder, language);
    library.english = OpenPack(englishFile);
    if (!library.english)
        return false;
    if (userFile != englishFile)
        library.user = OpenPack(userFile);
    return true;
}

CString LoadedLanguage() {
    const Library& library = Current();
    const Pack* pack = library.user ? library.user.get() : library.english.get();
    return pack ? pack->language : CString();
}

CString LoadString(unsigned id) {
    // Long work in a thread of its own says how far it is and why it failed.
    static std::mutex guard;
    const std::lock_guard lock(guard);
    Library& library = Current();
    if (const auto known = library.cache.constFind(id); known != library.cache.constEnd())
        return *known;
    CString text;
    if (library.user)
        text = TextOf(*library.user, id);
    if (text.isEmpty() && library.english)
        text = TextOf(*library.english, id);
    if (library.english)
        library.cache.insert(id, text);
    return text;
}

namespace {

// The user's language may have a file of its own; else the English one serves.
QByteArray ReadFromLibrary(const CString& name) {
    const Library& library = Current();
    for (const Pack* pack : {library.user.get(), library.english.get()}) {
        if (!pack)
            continue;
        QFile file(pack->root + name);
        if (file.open(QIODevice::ReadOnly))
            return file.readAll();
    }
    return {};
}

} // namespace

QByteArray LoadTemplateSource(unsigned number) {
    return ReadFromLibrary(CString("templates/%1.ui").arg(number));
}

QByteArray LoadImageSource(ImageType type, unsigned id) {
    return ReadFromLibrary(CString("images/%1/%2.svg").arg(QLatin1String(FolderOf(type))).arg(id));
}

QImage LoadImageOf(ImageType type, unsigned id, qreal scale) {
    const QByteArray source = LoadImageSource(type, id);
    if (source.isEmpty())
        return {};
    QSvgRenderer renderer(source);
    if (!renderer.isValid())
        return {};
    QImage image((QSizeF(renderer.defaultSize()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}
