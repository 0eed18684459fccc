#include "cli/StandardJson.h"

#include "cli/RowWords.h"
#include "engines/UIUtilities.h"
#include "model/CheckTypes.h"
#include "model/ParameterWording.h"
#include "platform/LanguageLibrary.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QJsonValue JsonValue(const CString* value) {
    return value ? QJsonValue(*value) : QJsonValue();
}
QJsonValue JsonValue(const COleDateTime*) {
    return {};
}
QJsonValue JsonValue(bool value) {
    return value;
}
QJsonValue JsonValue(double value) {
    return value;
}
template <class T>
requires std::is_integral_v<T> QJsonValue JsonValue(T value) {
    return static_cast<qint64>(value);
}

class StandardWriter {
public:
    explicit StandardWriter(const CStandard& standard) : m_standard(standard) {}

    QJsonObject Check(const CCheck& check) const {
        QJsonObject object = Entry(check);
        object["number"] = static_cast<qint64>(check.Sequence);
        object["type"] = check.Type;
        object["deleted"] = check.LifeStatus == LifeDeleted;
        if (const unsigned summary = SummaryTextOf(check.Type))
            object["summary"] = LoadString(summary);
        if (!FindContainerType(check.Type))
            return object;
        QJsonArray children;
        for (const CCheck* child : check.Children)
            children.append(Entry(*child));
        object["children"] = children;
        return object;
    }

private:
    QJsonObject Entry(const CCheck& check) const {
        CString criticality;
        unsigned long icon = 0;
        CEnumEngine().GetCriticalityTextAndIcon(check.Criticality, criticality, icon);
        QJsonArray parameters;
        for (const CParameterEntry* entry : check.Parameters)
            if (entry->Parameter && entry->Parameter->Operator != OpNone)
                parameters.append(Parameter(*entry));
        return {{"name", check.Name},
                {"criticality", static_cast<int>(check.Criticality)},
                {"criticalityText", criticality},
                {"parameters", parameters}};
    }

    QJsonObject Parameter(const CParameterEntry& entry) const {
        const CParameterBase& base = *entry.Parameter;
        const ParameterRow row = WordParameter(entry, m_standard.Unit, m_standard.AngularUnit);
        CString op;
        CUIUtilities().OperatorText(static_cast<int>(base.Operator), op);
        QJsonObject object{{"id", static_cast<qint64>(entry.ID)},
                           {"name", base.Name},
                           {"operator", static_cast<qint64>(base.Operator)},
                           {"operatorText", op},
                           {"shown", ValueText(row)}};
        VisitParameter(entry, [&object](const auto& parameter) {
            QJsonArray values;
            for (const auto& value : parameter.Values)
                values.append(JsonValue(value));
            object["values"] = values;
            if (parameter.CorrectionKind == CorrectionFixed)
                object["correction"] = JsonValue(parameter.Correction);
        });
        return object;
    }

    const CStandard& m_standard;
};

} // namespace

CString StandardJson(const OpenedStandard& opened, const CheckList& checks) {
    const StandardWriter writer(opened.Standard);
    QJsonArray list;
    for (const CCheck* check : checks)
        list.append(writer.Check(*check));
    const QJsonObject object{{"name", opened.HeaderText("Name")},
                             {"createdBy", opened.HeaderText("Createdby")},
                             {"createdOn", opened.HeaderText("CreatedOn")},
                             {"version", opened.Version},
                             {"lengthUnit", opened.Standard.Unit},
                             {"angleUnit", opened.Standard.AngularUnit},
                             {"runOption", opened.Standard.RunRWConfigOption},
                             {"checks", list}};
    return QString::fromUtf8(QJsonDocument(object).toJson());
}
