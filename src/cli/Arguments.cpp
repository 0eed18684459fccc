#include "cli/Arguments.h"

namespace {

const OptionRow* FindOption(std::span<const OptionRow> options, const CString& name) {
    for (const OptionRow& option : options)
        if (name == QLatin1String(option.name))
            return &option;
    return nullptr;
}

bool LooksLikeOption(const CString& word) {
    return word.size() > 1 && word.startsWith(u'-');
}

} // namespace

bool ParseArguments(const CStringArray& words, std::span<const OptionRow> options, Arguments& out,
                    CString& problem) {
    for (int i = 0; i < words.size(); ++i) {
        if (words[i] == "--") {
            out.operands += words.mid(i + 1);
            return true;
        }
        if (!LooksLikeOption(words[i])) {
            out.operands.append(words[i]);
            continue;
        }
        const qsizetype equals = words[i].startsWith("--") ? words[i].indexOf(u'=') : -1;
        const CString name = words[i].left(equals < 0 ? words[i].size() : equals);
        const OptionRow* option = FindOption(options, name);
        if (!option || (equals >= 0 && !option->value)) {
            problem = "unknown option " + words[i];
            return false;
        }
        if (option->value && equals < 0 && i + 1 == words.size()) {
            problem = "option " + name + " needs " + option->value;
            return false;
        }
        out.options.insert(name, !option->value ? CString()
                                 : equals < 0   ? words[++i]
                                                : words[i].mid(equals + 1));
    }
    return true;
}
