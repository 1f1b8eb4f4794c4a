#include "platform/number_format.h"

#include <QLocale>

namespace {

QLocale UserLocale() {
  const QLocale locale = QLocale::system();
  return locale.language() != QLocale::C ? locale
                                         : QLocale(QLocale::English, QLocale::UnitedStates);
}

}  // namespace

CNumberFormatStruct::CNumberFormatStruct() : locale_(UserLocale().name().toStdWString()) {}

CString CNumberFormatStruct::Format(std::uint64_t number) const {
  const QLocale locale(QString::fromStdWString(locale_));
  return locale.toString(static_cast<qulonglong>(number)).toStdWString();
}
