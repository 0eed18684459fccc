#include "platform/widgets/TemplateLoader.h"

#include "platform/LanguageLibrary.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QUiLoader>
#include <utility>

namespace {

QHash<CString, ControlMaker>& OwnClasses() {
    static QHash<CString, ControlMaker> classes;
    return classes;
}

// Making a loader searches the plugin folders for widgets of others, which cost much and are not wanted here.
struct WithoutPlugins {
    const QStringList paths = QCoreApplication::libraryPaths();
    WithoutPlugins() { QCoreApplication::setLibraryPaths({}); }
    ~WithoutPlugins() { QCoreApplication::setLibraryPaths(paths); }
};

class Loader : private WithoutPlugins, public QUiLoader {
public:
    Loader() { QCoreApplication::setLibraryPaths(paths); }

    bool Fill(const QByteArray& source, QWidget& window, QHash<int, QWidget*>& controls) {
        m_window = &window;
        m_controls = &controls;
        m_isWhole = true;
        QBuffer buffer;
        buffer.setData(source);
        buffer.open(QIODevice::ReadOnly);
        const bool isLoaded = load(&buffer) == &window;
        m_window = nullptr;
        m_controls = nullptr;
        return isLoaded && m_isWhole;
    }

    // The outermost widget of a template stands for the window that is filled.
    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override {
        if (!parent)
            return m_window;
        const ControlMaker maker = OwnClasses().value(className);
        QWidget* made = maker ? maker(parent) : QUiLoader::createWidget(className, parent, name);
        const bool isAsked = maker || className == "Line" ||
                             (made && className == QLatin1String(made->metaObject()->className()));
        if (!made || !isAsked) {
            // The loader itself would leave it out, or make something else of it, without a word.
            m_isWhole = false;
            return made;
        }
        made->setObjectName(name);
        bool isNumber = false;
        if (const int number = name.toInt(&isNumber); isNumber)
            m_controls->insert(number, made);
        return made;
    }

private:
    QWidget* m_window = nullptr;
    QHash<int, QWidget*>* m_controls = nullptr;
    bool m_isWhole = true;
};

} // namespace

bool FillFromTemplate(unsigned number, QWidget& window, QHash<int, QWidget*>& controls) {
    return FillFromSource(LoadTemplateSource(number), window, controls);
}

bool FillFromSource(const QByteArray& source, QWidget& window, QHash<int, QWidget*>& controls) {
    if (source.isEmpty())
        return false;
    static Loader loader;
    QHash<int, QWidget*> made;
    if (!loader.Fill(source, window, made))
        return false;
    controls.insert(made);
    return true;
}

void RegisterControlClass(const CString& className, ControlMaker maker) {
    OwnClasses().insert(className, std::move(maker));
}
