// The user's settings: keys with named values, each with its default, over an INI file in the user's
// configuration folder. A key's path is the group in the file.
//
// A key reads its values when it is made and writes them on request only. Nothing here reports a failure:
// a value that cannot be read keeps what it holds, one that cannot be written is lost at the end of the run.
// Two runs write the same file, and the last one wins.
#pragma once

#include "platform/SettingsValue.h"
#include "platform/Text.h"

#include <QPoint>
#include <QRect>
#include <cstdint>
#include <memory>
#include <vector>

class CSettingsKey : public CSettingsNode {
public:
    explicit CSettingsKey(const CString& subkey = {}, const CString& name = {});

    // Each makes the value with its default and puts it at the head of the children.
    void AddInt(const CString& name, int value);
    void AddColor(const CString& name, std::uint32_t value);
    void AddDouble(const CString& name, double value);
    void AddString(const CString& name, const CString& value);
    void AddPoint(const CString& name, const QPoint& value);
    void AddRect(const CString& name, const QRect& value);
    CSettingsKey& AddKey(std::unique_ptr<CSettingsKey> key);

    // The first value of that exact name and of that kind, depth first through nested keys too.
    // False, with `out` unchanged, where there is none; callers put their default into it before.
    bool GetInt(const CString& name, int& out) const;
    bool GetColor(const CString& name, std::uint32_t& out) const;
    bool GetDouble(const CString& name, double& out) const;
    bool GetString(const CString& name, CString& out) const;
    bool GetPoint(const CString& name, QPoint& out) const;
    bool GetRect(const CString& name, QRect& out) const;

    // The same search; in memory only, until WriteAll.
    bool SetInt(const CString& name, int value);
    bool SetColor(const CString& name, std::uint32_t value);
    bool SetDouble(const CString& name, double value);
    bool SetString(const CString& name, const CString& value);
    bool SetPoint(const CString& name, const QPoint& value);
    bool SetRect(const CString& name, const QRect& value);

    bool ReadAll();        // always true
    bool WriteAll() const; // always true
    CSettingsKey* FindKey(const CString& name);
    SettingsRoot SetRoot(SettingsRoot root); // gives the old one

private:
    template <class Value, class Data> void Add(const CString& name, const Data& value);
    template <class Value> Value* Find(const CString& name) const;
    template <class Value, class Data> bool Get(const CString& name, Data& out) const;
    template <class Value, class Data> bool Set(const CString& name, const Data& value);

    SettingsPlace m_place;
    std::vector<std::unique_ptr<CSettingsNode>> m_children; // the last added first
};

// The settings of the tool itself.
class CChkbldsetting : public CSettingsKey {
public:
    CChkbldsetting();
};

// The settings shared with the checker. Made where they are needed, so that they are always the current ones.
class CCommonRegSetting : public CSettingsKey {
public:
    CCommonRegSetting();
};

// The name of the user's language, "English" where none is set.
CString CurrentLanguage();

// The folder in which the first open dialog starts, as the host has set it; empty where it has not.
CString OpenInitialFolderFromHost();
