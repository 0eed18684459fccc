#include "cli/Commands.h"

#include "cli/CommandTable.h"
#include "cli/Usage.h"
#include "files/StandardFile.h"
#include "files/XmlDocument.h"
#include "platform/LanguageLibrary.h"
#include "platform/Message.h"
#include "platform/Settings.h"

namespace {

int WrongUsage(Console& console, const CString& problem, const CString& command = {}) {
    console.Error(problem);
    console.Error("try \"kvstd " + (command.isEmpty() ? CString() : command + " ") + "--help\"");
    return ExitUsage;
}

// Takes the option from the front of the words. False where its value is missing.
bool TakeLanguage(CStringArray& words, CString& language) {
    const CString option = "--language";
    while (!words.isEmpty() && (words[0] == option || words[0].startsWith(option + "="))) {
        const bool isOneWord = words[0] != option;
        language = isOneWord ? words[0].mid(option.size() + 1) : words.value(1);
        words = words.mid(isOneWord ? 1 : 2);
        if (language.isEmpty())
            return false;
    }
    return true;
}

// Pages made from the table of commands at build time.
bool PrintGenerated(const CString& word, Console& console) {
    if (word == "--man-page")
        console.Print(ManPage());
    else if (word == "--bash-completion")
        console.Print(BashCompletion());
    else
        return false;
    return true;
}

int RunRow(const CommandRow& command, const CStringArray& words, Console& console) {
    if (words.mid(0, words.indexOf("--")).contains("--help")) {
        console.Print(UsageText(command));
        return ExitDone;
    }
    Arguments arguments;
    CString problem;
    if (!ParseArguments(words, command.options, arguments, problem))
        return WrongUsage(console, problem, command.name);
    const qsizetype count = arguments.operands.size();
    if (count < command.fewest || (command.most >= 0 && count > command.most))
        return WrongUsage(console, count < command.fewest ? "too few arguments" : "too many arguments",
                          command.name);
    for (const OptionRow& option : command.options)
        if (CString(option.name) == "-o" && arguments.Value("-o").isEmpty())
            return WrongUsage(console, CString("option -o ") + option.value + " is needed", command.name);
    // What the core would show in a box goes to standard error; a command asks nothing.
    const MessageScope messages([&console](const CString& text, MessageButtons) {
        console.Error(text.simplified());
        return MessageAnswer::No;
    });
    try {
        return command.run(arguments, console);
    } catch (const CXmlError& error) {
        console.Error(QString::fromUtf8(error.what()));
        return ExitFailed;
    }
}

} // namespace

int RunCommandLine(const CStringArray& words, const CString& moduleFolder, Console& console) {
    CStringArray rest = words;
    CString language;
    if (!TakeLanguage(rest, language))
        return WrongUsage(console, "option --language needs NAME");
    if (rest.isEmpty())
        return WrongUsage(console, "no command given");
    const CString first = rest.takeFirst();
    if (first == "--help" || first == "help") {
        if (!rest.isEmpty() && !FindCommand(rest[0]))
            return WrongUsage(console, "unknown command " + rest[0]);
        console.Print(rest.isEmpty() ? UsageText() : UsageText(*FindCommand(rest[0])));
        return ExitDone;
    }
    if (first == "--version") {
        console.PrintLine(CString("kvstd %1").arg(ToolVersion));
        return ExitDone;
    }
    if (PrintGenerated(first, console))
        return ExitDone;
    const CommandRow* command = FindCommand(first);
    if (!command)
        return WrongUsage(console, (first.startsWith(u'-') ? "unknown option " : "unknown command ") + first);
    if (!LoadLanguage(moduleFolder, language.isEmpty() ? CurrentLanguage() : language)) {
        console.Error(ResolveLanguageLibrary(moduleFolder, "English"), "the language library cannot be read");
        return ExitFailed;
    }
    if (!language.isEmpty() && language.compare(LoadedLanguage(), Qt::CaseInsensitive) != 0)
        return WrongUsage(console, "unknown language " + language);
    return RunRow(*command, rest, console);
}
