#pragma once

#include <QString>
#include <utility>

/// Why a request was refused, as the sentence of the reply.
struct RequestError {
  explicit RequestError(QString why) : text(std::move(why)) {}
  QString text;
};
