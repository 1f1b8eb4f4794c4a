#pragma once

// One line of the drive port, taken apart and checked before anything is done.

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <optional>

/// A request whose verb is known and whose arguments are all there, of the right kind and known.
struct Request {
  QString verb;
  QJsonObject arguments;  ///< Without "do" and "wait".
  bool wait = true;       ///< False: answered before it is carried out.

  bool Has(const char* name) const { return arguments.contains(QLatin1String(name)); }
  int Int(const char* name) const { return arguments[QLatin1String(name)].toInt(); }
  QString Text(const char* name) const { return arguments[QLatin1String(name)].toString(); }
  QStringList Texts(const char* name) const;
};

struct ParsedRequest {
  std::optional<Request> request;
  QString error;  ///< Why there is no request, as a sentence.
};

/// Reads one line without its line end. Any bytes are allowed; what is not a request gives an
/// error.
ParsedRequest ParseRequest(const QByteArray& line);

/// The texts of `candidates` that are nearest to `wanted`, at most five, as "a, b or c"; "none"
/// when there are no candidates.
QString NearCandidates(const QString& wanted, const QStringList& candidates);
