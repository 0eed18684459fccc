#include "platform/SettingsValue.h"

#include "platform/Format.h"

#include <QSettings>
#include <QStandardPaths>
#include <QVariant>
#include <QtEndian>
#include <array>
#include <bit>
#include <charconv>
#include <limits>
#include <span>

namespace {

CString FileOf(SettingsRoot root) {
    const CString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return folder + (root == SettingsRoot::CurrentUser ? "/Kortavo/Ruleward.ini" : "/Kortavo/Machine.ini");
}

CString KeyOf(const SettingsPlace& place, const CString& name) {
    CString group = place.subkey;
    return group.replace(u'\\', u'/') + "/" + name;
}

bool WriteValue(const SettingsPlace& place, const CString& name, const QVariant& value) {
    QSettings settings(FileOf(place.root), QSettings::IniFormat);
    settings.setValue(KeyOf(place, name), value);
    settings.sync();
    return settings.status() == QSettings::NoError;
}

// The stored value, invalid where there is none.
QVariant ReadValue(const SettingsPlace& place, const CString& name) {
    const QSettings settings(FileOf(place.root), QSettings::IniFormat);
    return settings.value(KeyOf(place, name));
}

// Reads a stored number of 32 bits; the file knows texts only, so that one that is no number is of another
// kind.
bool ReadNumber(const SettingsPlace& place, const CString& name, std::uint32_t& out) {
    bool ok = false;
    const qlonglong number = ReadValue(place, name).toString().toLongLong(&ok);
    if (!ok || number < std::numeric_limits<std::int32_t>::min() ||
        number > std::numeric_limits<std::uint32_t>::max())
        return false;
    out = static_cast<std::uint32_t>(number);
    return true;
}

bool ReadText(const SettingsPlace& place, const CString& name, CString& out) {
    const QVariant value = ReadValue(place, name);
    if (value.typeId() != QMetaType::QString)
        return false;
    out = value.toString();
    return true;
}

// Reads whole numbers parted by blanks into the fields, up to the first that is none.
bool ReadNumbers(const SettingsPlace& place, const CString& name, std::span<int> fields) {
    CString text;
    if (!ReadText(place, name, text))
        return false;
    const QByteArray ascii = text.toLatin1();
    const char* at = ascii.constData();
    const char* const end = at + ascii.size();
    for (int& field : fields) {
        while (at != end && (*at == ' ' || *at == '\t'))
            ++at;
        const auto result = std::from_chars(at, end, field);
        if (result.ec != std::errc())
            break;
        at = result.ptr;
    }
    return true;
}

} // namespace

bool CIntValue::Write(const SettingsPlace& place) const {
    return WriteValue(place, Name, Value);
}

bool CIntValue::Read(const SettingsPlace& place) {
    std::uint32_t number = 0;
    if (!ReadNumber(place, Name, number))
        return false;
    Value = static_cast<std::int32_t>(number);
    return true;
}

bool CColorValue::Write(const SettingsPlace& place) const {
    return WriteValue(place, Name, Value);
}

bool CColorValue::Read(const SettingsPlace& place) {
    return ReadNumber(place, Name, Value);
}

bool CDoubleValue::Write(const SettingsPlace& place) const {
    QByteArray bytes(sizeof(double), '\0');
    qToLittleEndian(std::bit_cast<quint64>(Value), bytes.data());
    return WriteValue(place, Name, bytes);
}

bool CDoubleValue::Read(const SettingsPlace& place) {
    const QVariant value = ReadValue(place, Name);
    const QByteArray bytes = value.toByteArray();
    if (value.typeId() != QMetaType::QByteArray || bytes.size() != sizeof(double))
        return false;
    Value = std::bit_cast<double>(qFromLittleEndian<quint64>(bytes.constData()));
    return true;
}

bool CStringValue::Write(const SettingsPlace& place) const {
    return WriteValue(place, Name, Value);
}

bool CStringValue::Read(const SettingsPlace& place) {
    return ReadText(place, Name, Value);
}

bool CPointValue::Write(const SettingsPlace& place) const {
    return WriteValue(place, Name, FormatInt(Value.x()) + " " + FormatInt(Value.y()));
}

bool CPointValue::Read(const SettingsPlace& place) {
    std::array<int, 2> fields{Value.x(), Value.y()};
    const bool read = ReadNumbers(place, Name, fields);
    Value = QPoint(fields[0], fields[1]);
    return read;
}

bool CRectValue::Write(const SettingsPlace& place) const {
    int left, top, right, bottom;
    Value.getCoords(&left, &top, &right, &bottom);
    return WriteValue(place, Name,
                      FormatInt(left) + " " + FormatInt(top) + " " + FormatInt(right) + " " +
                          FormatInt(bottom));
}

bool CRectValue::Read(const SettingsPlace& place) {
    std::array<int, 4> fields;
    Value.getCoords(&fields[0], &fields[1], &fields[2], &fields[3]);
    const bool read = ReadNumbers(place, Name, fields);
    Value.setCoords(fields[0], fields[1], fields[2], fields[3]);
    return read;
}
