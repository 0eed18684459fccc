#include "cli/CommandTable.h"
#include "cli/TextTable.h"
#include "engines/EnumEngine.h"
#include "engines/EnumTables.h"
#include "engines/ParameterKinds.h"
#include "model/Catalogue.h"
#include "model/CheckTypes.h"
#include "platform/LanguageLibrary.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

struct ListValue {
    unsigned code;
    CString text;
};

std::vector<ListValue> ValuesOf(unsigned kind) {
    const ValueList& list = ValueListOf(static_cast<int>(kind));
    if (list.use == ListUse::YesNo)
        return {{0, LoadString(1661)}, {1, LoadString(1660)}};
    std::vector<ListValue> values;
    if (list.use == ListUse::Options)
        return values;
    for (const IdRun& run : list.texts)
        for (unsigned i = 0; i < run.count; ++i)
            values.push_back({run.firstKey + i, LoadString(run.firstId + i)});
    return values;
}

CString KindWords(const ParameterDefinition& parameter) {
    switch (parameter.parameterType) {
    case KindLength: return "length";
    case KindAngle: return "angle";
    case KindVolume: return "volume";
    case KindColor: return "color";
    case KindFontName: return "font name";
    case KindPlain: break;
    default: return "one of";
    }
    switch (parameter.dataType) {
    case DataText: return "text";
    case DataBool: return "yes or no";
    default: return "number";
    }
}

// What an entry of the catalogue holds: the parameters of its entries where it is a container, and its own.
std::vector<const CheckTypeDefinition*> DefinitionsOf(MQC_CheckType_e pageType) {
    std::vector<const CheckTypeDefinition*> definitions;
    if (const ContainerType* container = FindContainerType(pageType))
        definitions.push_back(FindCheckType(container->child));
    definitions.push_back(FindCheckType(pageType));
    return definitions;
}

void PrintCheck(const PageCheckRow& row, Console& console) {
    const CheckTypeDefinition* definition = FindCheckType(row.type);
    const CString repeats = FindContainerType(row.type) ? "  (any number of entries)" : "";
    console.PrintLine(CString("  %1  %2%3").arg(row.type).arg(LoadString(definition->nameText), repeats));
    if (const unsigned summary = SummaryTextOf(row.type)) {
        console.PrintLine("         " + LoadString(summary));
        return;
    }
    TextTable table(9);
    for (const CheckTypeDefinition* part : DefinitionsOf(row.type))
        for (const ParameterDefinition& parameter : part->parameters) {
            if (parameter.id == 0)
                continue;
            CStringArray texts;
            for (const ListValue& value : ValuesOf(parameter.parameterType))
                texts.append(value.text);
            table.Add({LoadString(parameter.id),
                       KindWords(parameter) + (texts.isEmpty() ? "" : ": " + texts.join(", "))});
        }
    console.Print(table.Text());
}

QJsonArray ParametersJson(MQC_CheckType_e pageType) {
    QJsonArray parameters;
    for (const CheckTypeDefinition* part : DefinitionsOf(pageType))
        for (const ParameterDefinition& parameter : part->parameters) {
            QJsonArray values;
            for (const ListValue& value : ValuesOf(parameter.parameterType))
                values.append(QJsonObject{{"code", static_cast<qint64>(value.code)}, {"text", value.text}});
            QJsonObject object{{"id", static_cast<qint64>(parameter.id)},
                               {"name", LoadString(parameter.id)},
                               {"checkType", part->type},
                               {"dataType", parameter.dataType},
                               {"parameterType", static_cast<qint64>(parameter.parameterType)},
                               {"optional", parameter.flag}};
            if (!values.isEmpty())
                object["values"] = values;
            parameters.append(object);
        }
    return parameters;
}

CString CatalogueJson() {
    QJsonArray groups;
    for (unsigned index = 0; index < CheckGroups().size(); ++index) {
        QJsonArray checks;
        for (const PageCheckRow& row : PageChecks())
            if (row.group == index)
                checks.append(QJsonObject{{"type", row.type},
                                          {"name", LoadString(FindCheckType(row.type)->nameText)},
                                          {"container", FindContainerType(row.type) != nullptr},
                                          {"correctable", IsAutoCorrectable(row.type)},
                                          {"summary", LoadString(SummaryTextOf(row.type))},
                                          {"parameters", ParametersJson(row.type)}});
        groups.append(
            QJsonObject{{"name", LoadString(CheckGroups()[index].tabTooltipText)}, {"checks", checks}});
    }
    return QString::fromUtf8(QJsonDocument(QJsonObject{{"groups", groups}}).toJson());
}

} // namespace

int RunCatalogue(const Arguments& arguments, Console& console) {
    if (arguments.Has("--json")) {
        console.Print(CatalogueJson());
        return ExitDone;
    }
    for (unsigned index = 0; index < CheckGroups().size(); ++index) {
        if (index > 0)
            console.PrintLine();
        console.PrintLine(LoadString(CheckGroups()[index].tabTooltipText));
        for (const PageCheckRow& row : PageChecks())
            if (row.group == index)
                PrintCheck(row, console);
    }
    return ExitDone;
}
