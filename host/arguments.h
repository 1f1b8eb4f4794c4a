#pragma once

// The command line.

#include <QString>
#include <QStringList>
#include <optional>

struct Arguments {
  QString command = QStringLiteral("config");
  QStringList operands;
  QString dataFolder;      ///< Empty: the user's own.
  QString machineFile;     ///< Empty: the real machine.
  QString languageFolder;  ///< Empty: the installed one.
  QString pictures;        ///< Folder of the pictures; empty: inside the data folder.
  int page = 4;
  int dpi = 0;   ///< 0: that of the machine.
  QString type;  ///< "bool", "int" or "string"; empty: as stored.
  bool help = false;
};

/// Reads the arguments behind the program's name. `error` says what is wrong with them; empty when
/// nothing is.
Arguments ParseArguments(const QStringList& arguments, QString& error);

QString HelpText();
