#include "host/tour.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>
#include <deque>

#include "host/drive/session.h"
#include "host/drive/store_verbs.h"
#include "host/environment.h"
#include "host/exit_status.h"

namespace {

constexpr int kSearchPage = 27;
constexpr int kShowHitCount = 5096;
constexpr int kNewSearchFilter = 5007;

// Letters and digits in lower case, everything else one dash.
QString FileNamePart(const QString& title) {
  QString name;
  for (const QChar character : title.toLower()) {
    if (character.isLetterOrNumber()) {
      name += character;
    } else if (!name.isEmpty() && !name.endsWith('-')) {
      name += '-';
    }
  }
  while (name.endsWith('-')) name.chop(1);
  return name;
}

/// Plays a list of requests on a session; a reply may add more.
class Script {
 public:
  Script(Environment& environment, const QString& folder)
      : environment_(environment),
        folder_(folder),
        session_(environment, [this](const QJsonObject& reply) { Take(reply); }) {}

  void Add(const QJsonObject& request) { requests_.push_back(request); }
  void AddShot(const QString& name) { Add(Shot(name)); }
  /// The nodes of the page tree, in order, with a picture of each. Of those that share a page
  /// number, which look alike, the first one stands for all.
  void AddPages() { Add({{"do", "tree"}}); }

  /// False when a request was refused; the reason has gone to standard error.
  bool Play() {
    if (!QDir().mkpath(folder_)) {
      environment_.Report(QStringLiteral("The folder %1 cannot be made.").arg(folder_));
      return false;
    }
    Send();
    return session_.Run() && !failed_;
  }

  const QStringList& Pictures() const { return pictures_; }
  std::optional<int> Status() const { return status_; }

 private:
  QJsonObject Shot(const QString& name) {
    pictures_ << folder_ + '/' + name + ".png";
    return {{"do", "shot"}, {"file", pictures_.back()}};
  }

  void Send() {
    if (requests_.empty() || failed_) return session_.TakeEnd();
    session_.TakeLine(QJsonDocument(requests_.front()).toJson(QJsonDocument::Compact));
  }

  void Take(const QJsonObject& reply) {
    if (reply.contains("event")) {
      status_ = reply["status"].toInt();
      return;
    }
    const QJsonObject request = requests_.front();
    requests_.pop_front();
    const bool vetoed = request.contains("row") && reply["selected"] != request["row"];
    if (!reply["ok"].toBool() || vetoed) {
      failed_ = true;
      environment_.Report(
          vetoed
              ? QStringLiteral("The page before row %1 cannot be left.").arg(request["row"].toInt())
              : reply["error"].toString());
    }
    if (request["do"] == "tree") InsertPages(reply["nodes"].toArray());
    Send();
  }

  void InsertPages(const QJsonArray& nodes) {
    std::deque<QJsonObject> pages;
    QSet<int> seen;
    for (const QJsonValue node : nodes) {
      const int page = node["page"].toInt();
      if (seen.contains(page)) continue;
      seen.insert(page);
      pages.push_back({{"do", "select"}, {"row", node["row"]}});
      pages.push_back(
          Shot(QStringLiteral("main-%1-%2").arg(page).arg(FileNamePart(node["title"].toString()))));
    }
    requests_.insert(requests_.begin(), pages.begin(), pages.end());
  }

  Environment& environment_;
  QString folder_;
  Session session_;
  std::deque<QJsonObject> requests_;
  QStringList pictures_;
  std::optional<int> status_;
  bool failed_ = false;
};

struct Standalone {
  const char* entry;
  const char* picture;
  int opener = 0;  ///< Control that opens the dialog of the picture from the one of the entry.
};

/// The dialogs beside the main one.
constexpr Standalone kStandalones[] = {{"ShowMessage", "message"},
                                       {"OpenClearHistoryDialog", "clear-history"},
                                       {"OpenEditHistoryDialog", "edit-history"},
                                       {"OpenLanguageDialog", "language"},
                                       {"OpenDocumentSettings", "documents"},
                                       {"OpenArchiveSettings", "archives"},
                                       {"OpenOCRSettings", "ocr"},
                                       {"OpenCacheSettings", "cache"},
                                       {"OpenSearchFilterList", "search-filters"},
                                       {"OpenSearchFilterList", "search-filter", kNewSearchFilter}};

void AddDialog(Script& script, const Standalone& dialog) {
  script.Add({{"do", "open"}, {"entry", dialog.entry}});
  if (dialog.opener != 0) script.Add({{"do", "click"}, {"control", dialog.opener}});
  script.AddShot(QString::fromLatin1(dialog.picture));
  if (dialog.opener != 0) script.Add({{"do", "key"}, {"key", "Escape"}});
  script.Add({{"do", "key"}, {"key", "Escape"}});
}

// Where the commands without a display put their pictures.
QString PictureFolder(Environment& environment) {
  const QString& wanted = environment.GetArguments().pictures;
  return wanted.isEmpty() ? environment.GetStores().Folder() + "/pictures"
                          : QDir(wanted).absolutePath();
}

void PrintPictures(const Script& script, const QString& folder) {
  Print(QStringLiteral("%1 pictures in %2\n").arg(script.Pictures().size()).arg(folder));
}

QString ToText(const QJsonValue& value) {
  return value.isUndefined() ? QStringLiteral("nothing") : value.toVariant().toString();
}

// One line for each value that is another one than before.
QStringList Differences(const QJsonObject& before, const QJsonObject& after) {
  QStringList lines;
  for (auto section = after.begin(); section != after.end(); ++section) {
    const QJsonObject values = section.value().toObject();
    const QJsonObject old = before[section.key()].toObject();
    for (auto value = values.begin(); value != values.end(); ++value) {
      if (old[value.key()] == value.value()) continue;
      lines << QStringLiteral("  %1/%2: %3 -> %4")
                   .arg(section.key(), value.key(), ToText(old[value.key()]),
                        ToText(value.value()));
    }
  }
  return lines;
}

}  // namespace

int RunTour(Environment& environment) {
  const QString folder = QDir(environment.GetArguments().operands.front()).absolutePath();
  Script script(environment, folder);
  script.Add({{"do", "open"}, {"entry", "OpenConfigDialog"}});
  script.AddPages();
  script.Add({{"do", "cancel"}});
  for (const Standalone& dialog : kStandalones) AddDialog(script, dialog);
  const bool good = script.Play();
  PrintPictures(script, folder);
  return good ? kExitDone : kExitLibrary;
}

int RunUnseenConfig(Environment& environment) {
  const Arguments& arguments = environment.GetArguments();
  const QString folder = PictureFolder(environment);
  const QJsonObject before = DumpStore(environment.GetStores().Get(kConfig));
  Script script(environment, folder);
  script.Add({{"do", "open"}, {"entry", "OpenConfigDialog"}, {"page", arguments.page}});
  script.AddPages();
  script.Add({{"do", "select"}, {"page", kSearchPage}});
  script.Add({{"do", "click"}, {"control", kShowHitCount}});
  script.AddShot(QStringLiteral("changed"));
  script.Add({{"do", "ok"}});
  const bool good = script.Play() && script.Status() == 0;
  PrintPictures(script, folder);
  if (!good) {
    environment.Report(QStringLiteral("The settings were not saved."));
    return kExitLibrary;
  }
  const QStringList changes = Differences(before, DumpStore(environment.GetStores().Get(kConfig)));
  Print(QStringLiteral("Saved in %1, changed:\n%2\n")
            .arg(environment.GetStores().Path(kConfig), changes.join('\n')));
  return kExitDone;
}

int RunUnseenDialog(Environment& environment, const QString& entry) {
  const QString folder = PictureFolder(environment);
  Script script(environment, folder);
  for (const Standalone& dialog : kStandalones) {
    if (entry == QLatin1String(dialog.entry)) AddDialog(script, dialog);
  }
  const bool good = script.Play();
  PrintPictures(script, folder);
  return good ? kExitDone : kExitLibrary;
}
