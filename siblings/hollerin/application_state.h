#pragma once

// What the process was set up with.

#include "hollerin/application.h"
#include "hollerin/language_mgr.h"

namespace HOLLERIN {

struct ApplicationState {
  bool isSetUp = false;
  Application application;
  std::shared_ptr<CLanguageMgr> language;  ///< Empty without a language.
};

ApplicationState& GetApplicationState();

}  // namespace HOLLERIN
