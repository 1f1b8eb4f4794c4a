#include "environment.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <optional>

#include "foundation/globals.h"
#include "foundation/library_module.h"
#include "hollerin/application.h"
#include "platform/application.h"

namespace {

std::shared_ptr<HOLLERIN::MemoryLog> memoryLog;
HOLLERIN::Application application;

class LibraryEnvironment : public testing::Environment {
 public:
  void SetUp() override {
    toolkit_.emplace(argc_, argv_);
    QFile file(BRISQUEL_RES);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << BRISQUEL_RES;
    resources_ = file.readAll();
    memoryLog = HOLLERIN::CreateMemoryLog(nullptr);
    application.langFolder = QStringLiteral(SOURCE_FOLDER "/lang/").toStdWString();
    application.log = memoryLog;
    EXPECT_EQ(HOLLERIN::SetUpApplication(application), L"");
    Process() = ProcessObjects();
    module_.emplace(std::as_bytes(std::span(resources_.constData(), resources_.size())));
    current_.emplace(LibraryModuleState());
  }

  void TearDown() override {
    current_.reset();
    module_.reset();
    ToolkitApplication::ProcessEvents();
    toolkit_.reset();
  }

 private:
  char name_[8] = "library";
  char* argv_[2] = {name_, nullptr};
  int argc_ = 1;
  QByteArray resources_;
  std::optional<ToolkitApplication> toolkit_;
  std::optional<LibraryModule> module_;
  std::optional<AFX_MAINTAIN_STATE2> current_;
};

[[maybe_unused]] testing::Environment* const environment =
    testing::AddGlobalTestEnvironment(new LibraryEnvironment);

/// The heading is the one label that the box does not know by a name of its own.
std::wstring HeadingOf(const QMessageBox& box) {
  for (const QLabel* label : box.findChildren<QLabel*>(QString())) {
    if (label->objectName().isEmpty() && !label->text().isEmpty())
      return label->text().toStdWString();
  }
  return {};
}

class Answerer : public QObject {
 public:
  explicit Answerer(QMessageBox::StandardButton button) : button_(button) {
    qApp->installEventFilter(this);
  }
  bool eventFilter(QObject* object, QEvent* event) override {
    auto* box = qobject_cast<QMessageBox*>(object);
    if (box != nullptr && event->type() == QEvent::Show) Answer(*box);
    return false;
  }

  std::vector<ShownMessage> shown;

 private:
  void Answer(QMessageBox& box) {
    shown.push_back({box.windowTitle().toStdWString(), HeadingOf(box), box.text().toStdWString(),
                     box.icon(), box.standardButtons()});
    QAbstractButton* button = box.button(button_);
    // A box with one button has no other answer.
    if (button == nullptr && box.buttons().size() == 1) button = box.buttons().first();
    EXPECT_NE(button, nullptr) << box.text().toStdString();
    if (button == nullptr) button = box.buttons().first();
    QMetaObject::invokeMethod(button, &QAbstractButton::click, Qt::QueuedConnection);
  }

  QMessageBox::StandardButton button_;
};

}  // namespace

std::vector<std::wstring> TakeLog() { return memoryLog->TakeLines(); }

void SetGlobalMaster(std::shared_ptr<INTERNAL_IFC::IConfigDataMgr> master) {
  application.master = std::move(master);
  HOLLERIN::SetUpApplication(application);
}

ScopedLanguage::ScopedLanguage(std::shared_ptr<RES::ILanguageMgr> language)
    : previous_(std::exchange(Process().language, std::move(language))) {}

ScopedLanguage::~ScopedLanguage() { Process().language = previous_; }

std::vector<ShownMessage> AnswerMessages(const std::function<void()>& work,
                                         QMessageBox::StandardButton button) {
  Answerer answerer(button);
  work();
  return std::move(answerer.shown);
}
