#include "host/arguments.h"

#include <iterator>

namespace {

struct Command {
  const char* name;
  const char* operands;
  int least;
  int most;
  const char* options;  // The options beside those of every command, between blanks.
  const char* help;
};

constexpr Command kCommands[] = {
    {"config", "", 0, 0, " --page --pictures ", "open the settings; the default command"},
    {"message", "", 0, 0, " --pictures ", "show the test message"},
    {"clear-history", "", 0, 0, " --pictures ", "clear histories at once"},
    {"edit-history", "", 0, 0, " --pictures ", "edit histories as text"},
    {"language", "", 0, 0, " --pictures ", "choose the language of the next start"},
    {"documents", "", 0, 0, " --pictures ", "choose the document formats to search"},
    {"archives", "", 0, 0, " --pictures ", "choose the archive formats to search"},
    {"ocr", "", 0, 0, " --pictures ", "set up the recognition of text in pictures"},
    {"cache", "", 0, 0, " --pictures ", "look after the text cache"},
    {"filters", "", 0, 0, " --pictures ", "maintain the persistent search filters"},
    {"get", "STORE SECTION KEY", 3, 3, "", "print a value"},
    {"set", "STORE SECTION KEY VALUE", 4, 4, " --type ", "store a value"},
    {"list", "[STORE]", 0, 1, "", "print all values: store, section, key, type, value"},
    {"export", "STORE [FILE]", 1, 2, "", "write a store to a file or to standard output"},
    {"import", "STORE FILE", 2, 2, "", "replace a store's values by those of an exported file"},
    {"tour", "OUT_DIR", 1, 1, " --dpi ", "write a picture of every dialog and page"},
    {"drive", "", 0, 0, "", "take requests from standard input, one JSON object a line"},
};

bool SetText(QString& target, const QString& value) {
  target = value;
  return !value.isEmpty();
}

bool SetNumber(int& target, const QString& value, int least, int most) {
  bool good = false;
  target = value.toInt(&good);
  return good && target >= least && target <= most;
}

struct Option {
  const char* name;
  const char* operand;
  const char* wanted;
  bool everywhere;
  bool (*take)(Arguments&, const QString&);
  const char* help;
};

constexpr Option kOptions[] = {
    {"--data", "DIR", "a folder", true,
     [](Arguments& to, const QString& value) { return SetText(to.dataFolder, value); },
     "folder of the stores and the log; made when missing\n"
     "                   (default: quarrow in $XDG_DATA_HOME or ~/.local/share)"},
    {"--machine", "FILE", "a file", true,
     [](Arguments& to, const QString& value) { return SetText(to.machineFile, value); },
     "JSON object that replaces facts of the machine; the stores of\n"
     "                   a new data folder then start empty"},
    {"--lang-dir", "DIR", "a folder", true,
     [](Arguments& to, const QString& value) { return SetText(to.languageFolder, value); },
     "folder of the language files (default: the installed one)"},
    {"--page", "N", "a page number", false,
     [](Arguments& to, const QString& value) { return SetNumber(to.page, value, -1, 1 << 30); },
     "config: number of the page to show first (default: 4)"},
    {"--pictures", "DIR", "a folder", false,
     [](Arguments& to, const QString& value) { return SetText(to.pictures, value); },
     "dialogs: without a display, folder of the pictures\n"
     "                   (default: pictures in the data folder)"},
    {"--type", "TYPE", "\"bool\", \"int\" or \"string\"", false,
     [](Arguments& to, const QString& value) {
       to.type = value;
       return value == "bool" || value == "int" || value == "string";
     },
     "set: bool, int or string (default: as the value is stored, and\n"
     "                   string for a new value)"},
    {"--dpi", "N", "a number from 48 to 960", false,
     [](Arguments& to, const QString& value) { return SetNumber(to.dpi, value, 48, 960); },
     "tour: logical pixels per inch (default: 96)"},
};

const Command* FindCommand(const QString& name) {
  for (const Command& command : kCommands) {
    if (name == QLatin1String(command.name)) return &command;
  }
  return nullptr;
}

const Option* FindOption(const QString& name) {
  for (const Option& option : kOptions) {
    if (name == QLatin1String(option.name)) return &option;
  }
  return nullptr;
}

// Operands may begin with a dash behind "--", as negative numbers must.
struct Splitter {
  Arguments& result;
  QString& error;
  QStringList given = {};
  QStringList words = {};

  bool TakeOption(const QString& argument, const QStringList& all, qsizetype& at) {
    const qsizetype equals = argument.indexOf('=');
    const QString name = argument.left(equals);
    if (name == "--help" || name == "-h") return result.help = true;
    const Option* option = FindOption(name);
    if (option == nullptr) {
      error = QStringLiteral("There is no option %1.").arg(name);
      return false;
    }
    if (equals < 0 && at + 1 >= all.size()) {
      error = QStringLiteral("The option %1 needs %2.").arg(name, option->wanted);
      return false;
    }
    const QString value = equals < 0 ? all[++at] : argument.mid(equals + 1);
    given << name;
    if (option->take(result, value)) return true;
    error = QStringLiteral("The option %1 needs %2, not \"%3\".").arg(name, option->wanted, value);
    return false;
  }

  bool Run(const QStringList& all) {
    bool options = true;
    for (qsizetype at = 0; at < all.size(); ++at) {
      const QString& argument = all[at];
      if (options && argument == "--") {
        options = false;
      } else if (options && argument.startsWith('-') && argument.size() > 1 &&
                 !argument[1].isDigit()) {
        if (!TakeOption(argument, all, at)) return false;
      } else {
        words << argument;
      }
    }
    return true;
  }
};

QString CheckCommand(const Arguments& result, const QStringList& given) {
  const Command* command = FindCommand(result.command);
  if (command == nullptr) return QStringLiteral("There is no command %1.").arg(result.command);
  const auto count = result.operands.size();
  if (count < command->least || count > command->most) {
    return QStringLiteral("Usage: quarrow-config %1 %2").arg(command->name, command->operands);
  }
  for (const QString& name : given) {
    if (FindOption(name)->everywhere) continue;
    if (QString(command->options).contains(' ' + name + ' ')) continue;
    return QStringLiteral("The command %1 has no option %2.").arg(result.command, name);
  }
  return {};
}

}  // namespace

Arguments ParseArguments(const QStringList& arguments, QString& error) {
  Arguments result;
  error.clear();
  Splitter splitter{result, error};
  if (!splitter.Run(arguments) || result.help) return result;
  if (!splitter.words.isEmpty()) {
    result.command = splitter.words.front();
    result.operands = splitter.words.mid(1);
  }
  error = CheckCommand(result, splitter.given);
  return result;
}

QString HelpText() {
  QString text = QStringLiteral("Usage: quarrow-config [COMMAND] [OPTIONS]\n\nCommands:\n");
  for (const Command& command : kCommands) {
    const QString call = QStringLiteral("%1 %2").arg(command.name, command.operands);
    text += QStringLiteral("  %1 %2\n").arg(call, -28).arg(QLatin1String(command.help));
  }
  text += QStringLiteral(
      "STORE is config, master, history or fourth. A value that begins with a dash goes behind "
      "--.\n"
      "Without a display, the commands that open a dialog work off screen and write pictures; "
      "config\n"
      "also changes one setting, saves it and says what was written where.\n"
      "\nOptions:\n");
  for (const Option& option : kOptions) {
    const QString call = QStringLiteral("%1 %2").arg(option.name, option.operand);
    text += QStringLiteral("  %1 %2\n").arg(call, -16).arg(QLatin1String(option.help));
  }
  text += QStringLiteral(
      "\nExit status:\n"
      "  0  done\n"
      "  1  the dialog was cancelled, or there is no such value\n"
      "  2  the command line or the machine file is wrong\n"
      "  3  another copy of the program uses the data folder\n"
      "  4  a file cannot be read or written\n"
      "  5  the settings library cannot be loaded, or failed\n");
  return text;
}
