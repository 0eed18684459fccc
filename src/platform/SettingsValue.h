// The values of a settings key and the form in which each is stored.
#pragma once

#include "platform/Text.h"

#include <QPoint>
#include <QRect>
#include <cstdint>

// The stores that a key may lie in, one file each; the numbers are those of the host's own tree of settings.
enum class SettingsRoot : std::uint32_t { CurrentUser = 0x80000001, LocalMachine = 0x80000002 };

struct SettingsPlace {
    SettingsRoot root = SettingsRoot::CurrentUser;
    CString subkey; // levels parted by "\"
};

// What a key holds: a value, or a nested key.
class CSettingsNode {
public:
    explicit CSettingsNode(const CString& name) : Name(name) {}
    virtual ~CSettingsNode() = default;
    CSettingsNode(const CSettingsNode&) = delete;
    CSettingsNode& operator=(const CSettingsNode&) = delete;

    CString Name;
};

// Read and Write open the place afresh each time and tell whether that worked; a value that is not there,
// or is of another kind, leaves the field as it is.
class CSettingsValue : public CSettingsNode {
public:
    using CSettingsNode::CSettingsNode;
    virtual bool Write(const SettingsPlace&) const { return false; }
    virtual bool Read(const SettingsPlace&) { return false; }
};

class CIntValue : public CSettingsValue {
public:
    CIntValue(const CString& name, int value) : CSettingsValue(name), Value(value) {}
    bool Write(const SettingsPlace& place) const override;
    bool Read(const SettingsPlace& place) override;

    int Value;
};

class CColorValue : public CSettingsValue {
public:
    CColorValue(const CString& name, std::uint32_t value) : CSettingsValue(name), Value(value) {}
    bool Write(const SettingsPlace& place) const override;
    bool Read(const SettingsPlace& place) override;

    std::uint32_t Value; // 0x00BBGGRR
};

// Stored as the 8 bytes of the number, the lowest first.
class CDoubleValue : public CSettingsValue {
public:
    CDoubleValue(const CString& name, double value) : CSettingsValue(name), Value(value) {}
    bool Write(const SettingsPlace& place) const override;
    bool Read(const SettingsPlace& place) override;

    double Value;
};

class CStringValue : public CSettingsValue {
public:
    CStringValue(const CString& name, const CString& value) : CSettingsValue(name), Value(value) {}
    bool Write(const SettingsPlace& place) const override;
    bool Read(const SettingsPlace& place) override;

    CString Value;
};

// Stored as text, "x y".
class CPointValue : public CSettingsValue {
public:
    CPointValue(const CString& name, const QPoint& value) : CSettingsValue(name), Value(value) {}
    bool Write(const SettingsPlace& place) const override;
    bool Read(const SettingsPlace& place) override;

    QPoint Value;
};

// Stored as text, "left top right bottom": the four coordinates of QRect::getCoords.
class CRectValue : public CSettingsValue {
public:
    CRectValue(const CString& name, const QRect& value) : CSettingsValue(name), Value(value) {}
    bool Write(const SettingsPlace& place) const override;
    bool Read(const SettingsPlace& place) override;

    QRect Value;
};
