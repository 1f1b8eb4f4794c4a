#pragma once

// What the tests of the library share: a toolkit without a display, the English language, the
// library's own resources, and a log that can be read.

#include <QMessageBox>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ifc/config_data_mgr.h"
#include "ifc/language_mgr.h"

/// What was written to the application's log since the last call.
std::vector<std::wstring> TakeLog();

/// Makes a store the global master configuration; empty for none.
void SetGlobalMaster(std::shared_ptr<INTERNAL_IFC::IConfigDataMgr> master);

/// Puts another language, or none, in the place of English for as long as the object lives.
class ScopedLanguage {
 public:
  explicit ScopedLanguage(std::shared_ptr<RES::ILanguageMgr> language);
  ~ScopedLanguage();
  ScopedLanguage(const ScopedLanguage&) = delete;
  ScopedLanguage& operator=(const ScopedLanguage&) = delete;

 private:
  std::shared_ptr<RES::ILanguageMgr> previous_;
};

/// What a message box showed.
struct ShownMessage {
  std::wstring caption;
  std::wstring heading;  ///< Empty without one.
  std::wstring text;
  QMessageBox::Icon icon = QMessageBox::NoIcon;
  QMessageBox::StandardButtons buttons;
};

/// Runs `work`, answers every message box that opens meanwhile with `button`, and returns them in
/// order.
std::vector<ShownMessage> AnswerMessages(const std::function<void()>& work,
                                         QMessageBox::StandardButton button = QMessageBox::Ok);
