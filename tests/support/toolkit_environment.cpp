#include <gtest/gtest.h>

#include <QApplication>

#include "platform/application.h"

namespace {

/// Starts the toolkit once for all tests of the program.
class ToolkitEnvironment : public testing::Environment {
 public:
  void SetUp() override {
    static char name[] = "tests";
    static char* arguments[] = {name, nullptr};
    static int count = 1;
    toolkit_ = std::make_unique<ToolkitApplication>(count, arguments);
  }
  void TearDown() override { toolkit_.reset(); }

 private:
  std::unique_ptr<ToolkitApplication> toolkit_;
};

[[maybe_unused]] const auto* const kEnvironment =
    testing::AddGlobalTestEnvironment(new ToolkitEnvironment);

}  // namespace
