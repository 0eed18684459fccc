// A window made of one template: its controls are found by number, their events wired in one place, and
// their contents exchanged with the window's own fields.
#pragma once

#include "platform/Text.h"

#include <QHash>
#include <QObject>
#include <QWidget>
#include <functional>
#include <initializer_list>
#include <memory>
#include <vector>

// What a user does to a control.
enum class ControlEvent {
    Clicked,   // a button, box or radio button; not when code sets it
    SelChange, // another row of a combo box, by the user; of a list, by whomever
    Change,    // another text, by whomever
    KillFocus  // the keyboard left the control
};

class ControlHost;

// Moves contents between controls and fields, in the direction given. A number without a control, or with
// one of another kind, leaves the field as it is.
class DataExchange {
public:
    DataExchange(const ControlHost& host, bool save) : m_host(host), m_save(save) {}

    bool IsSaving() const { return m_save; }
    void Text(int number, CString& value) const;
    void Check(int number, int& value) const;                         // 0 or 1
    void Radio(std::initializer_list<int> numbers, int& value) const; // place of the chosen one, or -1
    void ComboIndex(int number, int& value) const;                    // row, or -1
    void Number(int number, int& value) const;                        // of a spin box

private:
    const ControlHost& m_host;
    bool m_save;
};

// To be inherited beside a widget class, and given that widget.
class ControlHost {
public:
    explicit ControlHost(QWidget& window);
    virtual ~ControlHost();
    ControlHost(const ControlHost&) = delete;
    ControlHost& operator=(const ControlHost&) = delete;

    // Fills the window with the template of that number of the language library. False where the library has
    // none or it is damaged; the window is then empty.
    bool LoadTemplate(unsigned number);

    // The control of that number, or null where there is none of that class.
    template <class T = QWidget> T* GetDlgItem(int number) const {
        return qobject_cast<T*>(m_controls.value(number));
    }
    const QHash<int, QWidget*>& Controls() const { return m_controls; }
    // Makes a control that was created in code known under a number.
    void AddControl(int number, QWidget* control) { m_controls.insert(number, control); }

    // Reads all controls into the fields, or shows the fields in them. Events that this raises find the
    // exchange busy and change nothing; false then.
    bool UpdateData(bool save);
    bool IsExchanging() const { return m_exchanging; }

protected:
    virtual void DoDataExchange(DataExchange&) {}

    // Calls `handler` for the event. Events are not told while data are exchanged. A number without a control
    // is left out.
    template <class Class> void On(int number, ControlEvent event, void (Class::*handler)()) {
        Connect(number, event, [self = static_cast<Class*>(this), handler] { (self->*handler)(); });
    }
    void Connect(int number, ControlEvent event, std::function<void()> handler);

private:
    QWidget& m_window;
    QHash<int, QWidget*> m_controls;
    std::unique_ptr<QObject> m_events; // ends all wiring with the host
    bool m_exchanging = false;
};
