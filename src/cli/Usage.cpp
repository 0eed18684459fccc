#include "cli/Usage.h"

namespace {

constexpr qsizetype HelpColumn = 26;
constexpr qsizetype LineWidth = 79;

CString OptionHead(const OptionRow& option) {
    return option.value ? CString("%1 %2").arg(QLatin1String(option.name), QLatin1String(option.value))
                        : CString(QLatin1String(option.name));
}

// An output file is always needed; other options may be left out.
bool IsRequired(const OptionRow& option) {
    return CString(QLatin1String(option.name)) == "-o";
}

CString Synopsis(const CommandRow& command) {
    CString line = command.name;
    for (const OptionRow& option : command.options)
        if (IsRequired(option))
            line += " " + OptionHead(option);
    if (*command.operands)
        line += CString(" ") + command.operands;
    for (const OptionRow& option : command.options)
        if (!IsRequired(option))
            line += " [" + OptionHead(option) + "]";
    return line;
}

// Words of `text` in lines that fit a terminal, each after the first indented.
CString Wrapped(const CString& text, qsizetype indent) {
    CString out;
    qsizetype column = indent;
    const QStringList words = text.split(u' ');
    for (const CString& word : words) {
        if (column > indent && column + 1 + word.size() > LineWidth) {
            out += "\n" + CString(indent, u' ');
            column = indent;
        }
        if (column > indent) {
            out += " ";
            ++column;
        }
        out += word;
        column += word.size();
    }
    return out;
}

CString TableRow(const CString& head, const CString& help) {
    const CString start = "  " + head.leftJustified(HelpColumn - 3, u' ') + " ";
    const bool isLong = start.size() > HelpColumn;
    return (isLong ? "  " + head + "\n" + CString(HelpColumn, u' ') : start) + Wrapped(help, HelpColumn) +
           "\n";
}

CString OptionTable(std::span<const OptionRow> options) {
    CString text;
    for (const OptionRow& option : options)
        text += TableRow(OptionHead(option), option.help);
    return text;
}

// Text as troff takes it.
CString Troff(const CString& text) {
    CString out = text;
    out.replace("\\", "\\e").replace("-", "\\-");
    return out.startsWith(u'.') || out.startsWith(u'\'') ? "\\&" + out : out;
}

CString TroffOptions(std::span<const OptionRow> options) {
    CString text;
    for (const OptionRow& option : options) {
        text += ".TP\n.B " + Troff(option.name);
        if (option.value)
            text += CString(" \\fI") + option.value + "\\fR";
        text += "\n" + Troff(option.help) + "\n";
    }
    return text;
}

constexpr const char* Purpose =
    "Works on standards: the files in which a design department writes down what it "
    "requires of its CAD documents.";
constexpr const char* ExitCodes[][2] = {{"0", "done"},
                                        {"1", "done, with findings"},
                                        {"2", "wrong usage"},
                                        {"3", "could not be done; a message says why"}};

} // namespace

CString UsageText() {
    CString text = "Usage: kvstd [--language NAME] COMMAND ...\n\n" + Wrapped(Purpose, 0) + "\n\nCommands:\n";
    for (const CommandRow& command : CommandTable())
        text += TableRow(command.name, command.summary);
    text += "\nOptions:\n" + OptionTable(GlobalOptions()) + "\nExit codes:\n";
    for (const auto& [code, meaning] : ExitCodes)
        text += TableRow(code, meaning);
    return text + "\n\"kvstd COMMAND --help\" tells more of a command.\n";
}

CString UsageText(const CommandRow& command) {
    CString text = "Usage: kvstd " + Synopsis(command) + "\n\n" + command.summary + "\n" +
                   Wrapped(command.details, 0) + "\n";
    if (!command.options.empty())
        text += "\nOptions:\n" + OptionTable(command.options);
    return text;
}

CString ManPage() {
    CString text = ".TH KVSTD 1 \"\" \"Ruleward Builder\" \"User Commands\"\n.SH NAME\n"
                   "kvstd \\- show, check, merge, report and convert standards\n.SH SYNOPSIS\n"
                   ".B kvstd\n[\\fB\\-\\-language\\fR \\fINAME\\fR] \\fICOMMAND\\fR ...\n.SH DESCRIPTION\n";
    text += Troff(Purpose) + "\n.SH COMMANDS\n";
    for (const CommandRow& command : CommandTable()) {
        text += ".SS " + Troff(Synopsis(command)) + "\n" + Troff(command.summary) + "\n" +
                Troff(command.details) + "\n" + TroffOptions(command.options);
    }
    text += ".SH OPTIONS\n" + TroffOptions(GlobalOptions()) + ".SH EXIT STATUS\n";
    for (const auto& [code, meaning] : ExitCodes)
        text += CString(".TP\n.B %1\n%2\n").arg(QLatin1String(code), Troff(meaning));
    return text;
}

CString BashCompletion() {
    CStringArray names;
    CString cases;
    for (const CommandRow& command : CommandTable()) {
        names.append(command.name);
        CStringArray options{"--help"};
        for (const OptionRow& option : command.options)
            options.append(option.name);
        cases += CString("    %1) words=\"%2\" ;;\n").arg(QLatin1String(command.name), options.join(" "));
    }
    CStringArray globals;
    for (const OptionRow& option : GlobalOptions())
        globals.append(option.name);
    return CString(R"(# bash completion for kvstd
_kvstd() {
  local current="${COMP_WORDS[COMP_CWORD]}" command="" word words
  for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
    case " %1 " in *" $word "*) command="$word"; break ;; esac
  done
  case "$command" in
    "") words="%1 %2" ;;
%3  esac
  # A line for each, since file names hold blanks.
  mapfile -t COMPREPLY < <(
    compgen -W "$words" -- "$current"
    [ -n "$command" ] && [ "${current#-}" = "$current" ] && compgen -f -- "$current")
}
complete -o filenames -F _kvstd kvstd
)")
        .arg(names.join(" "), globals.join(" "), cases);
}
