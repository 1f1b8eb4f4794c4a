// One size message on a dialog with bound controls, beside setGeometry of the same widgets with
// rectangles worked out beforehand, and beside a QGridLayout with as many widgets. Painting is
// switched off on all sides.

#include <benchmark/benchmark.h>

#include <QtWidgets>
#include <fstream>
#include <iterator>

#include "foundation/geometry.h"
#include "foundation/translate_dialog.h"
#include "hollerin/application.h"
#include "platform/application.h"
#include "ratios.h"
#include "resources/resource.h"

namespace {

const CSize kSmall{1000, 800};
const CSize kLarge{1160, 890};
constexpr int kColumns = 20;
constexpr int kFirstControl = 6000;

/// A dialog with push buttons that are bound in turn to the constraints of real dialogs.
class BoundDialog : public CBaseTranslateDialog, public Geometry::ILayout {
 public:
  BoundDialog() : CBaseTranslateDialog(IDD_MESSAGE_BOX) {}
  int count = 0;

 protected:
  BOOL OnInitDialog() override {
    CBaseTranslateDialog::OnInitDialog();
    MoveWindow(CRect(0, 0, kSmall.cx, kSmall.cy));
    static constexpr std::wstring_view kTexts[] = {L"X", L"CX", L"X+Y", L"CX+Y", L"Y"};
    for (int i = 0; i < count; ++i) {
      const int left = i % kColumns * 48, top = i / kColumns * 14;
      CreateWindowChild(L"Button", L"", WS_CHILD | WS_VISIBLE,
                        CRect(left, top, left + 40, top + 12), this, kFirstControl + i);
      const Geometry::ControlConstraint row{kFirstControl + i, kTexts[i % std::size(kTexts)]};
      Geometry::BindControls(*this, this, {&row, 1});
    }
    return TRUE;
  }
};

using Dialog = Geometry::CGeometryWnd<BoundDialog>;

void Send(Dialog& dialog, CSize size) {
  dialog.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(size.cx, size.cy));
}

/// The widgets of one dialog that move, and where both sizes put them.
struct Moves {
  QWidget* window = nullptr;
  std::vector<QWidget*> widgets;
  std::vector<QRect> small, large;
};

class Scene {
 public:
  explicit Scene(int count) {
    dialog_.count = count;
    const QWidgetList before = QApplication::topLevelWidgets();
    dialog_.Create(IDD_MESSAGE_BOX, nullptr);
    dialog_.ShowWindow(SW_SHOW);
    ToolkitApplication::ProcessEvents();
    for (QWidget* window : QApplication::topLevelWidgets()) {
      const bool made = window->property("templateNumber").toInt() == IDD_MESSAGE_BOX;
      if (made && !before.contains(window)) moves_.window = window;
    }
    for (QWidget* child : moves_.window->findChildren<QWidget*>()) {
      if (child->property("controlNumber").toInt() >= kFirstControl)
        moves_.widgets.push_back(child);
    }
    // Both sides repaint the same pixels; what differs is how the widgets get to their places.
    moves_.window->setUpdatesEnabled(false);
    Record(kSmall, moves_.small);
    Record(kLarge, moves_.large);
  }

  void SizeMessage(benchmark::State& state) {
    for (auto _ : state) {
      Send(dialog_, large_ ? kSmall : kLarge);
      large_ = !large_;
    }
  }

  void SetGeometry(benchmark::State& state) {
    for (auto _ : state) {
      const std::vector<QRect>& target = large_ ? moves_.small : moves_.large;
      for (std::size_t i = 0; i < moves_.widgets.size(); ++i) {
        moves_.widgets[i]->setGeometry(target[i]);
      }
      large_ = !large_;
    }
    // The layout remembers the size that it applied last; both sides leave the same one.
    Send(dialog_, large_ ? kSmall : kLarge);
    Send(dialog_, large_ ? kLarge : kSmall);
  }

 private:
  void Record(CSize size, std::vector<QRect>& rectangles) {
    Send(dialog_, size);
    large_ = size == kLarge;
    for (const QWidget* widget : moves_.widgets) rectangles.push_back(widget->geometry());
  }

  Dialog dialog_;
  Moves moves_;
  bool large_ = false;
};

void GridLayout(benchmark::State& state, int count) {
  QWidget window;
  auto* grid = new QGridLayout(&window);
  grid->setSpacing(2);
  for (int i = 0; i < count; ++i) {
    auto* button = new QPushButton(&window);
    button->setMinimumSize(4, 4);
    grid->addWidget(button, i / kColumns, i % kColumns);
  }
  window.resize(kSmall.cx, kSmall.cy);
  window.show();
  QCoreApplication::processEvents();
  window.setUpdatesEnabled(false);
  bool large = false;
  for (auto _ : state) {
    const CSize size = large ? kSmall : kLarge;
    grid->setGeometry(QRect(0, 0, size.cx, size.cy));
    large = !large;
  }
}

}  // namespace

int main(int argc, char** argv) {
  ToolkitApplication toolkit(argc, argv);
  HOLLERIN::SetUpApplication({});
  std::ifstream file(BRISQUEL_RES, std::ios::binary);
  const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
  const CModule module(L"bench", std::as_bytes(std::span(bytes)));
  const AFX_MODULE_STATE moduleState(&module);
  const AFX_MAINTAIN_STATE2 current(moduleState);

  std::vector<std::unique_ptr<Scene>> scenes;
  std::vector<RatioGoal> goals;
  for (const int count : {10, 50, 100, 1000}) {
    Scene* scene = scenes.emplace_back(std::make_unique<Scene>(count)).get();
    const std::string suffix = "/" + std::to_string(count);
    benchmark::RegisterBenchmark(("SizeMessage" + suffix).c_str(),
                                 [scene](benchmark::State& state) { scene->SizeMessage(state); });
    benchmark::RegisterBenchmark(("SetGeometry" + suffix).c_str(),
                                 [scene](benchmark::State& state) { scene->SetGeometry(state); });
    benchmark::RegisterBenchmark(("GridLayout" + suffix).c_str(), GridLayout, count);
    goals.push_back({"SizeMessage" + suffix, "SetGeometry" + suffix, 1.05});
    goals.push_back({"SizeMessage" + suffix, "GridLayout" + suffix, 0});
  }
  return RunAndPrintRatios(argc, argv, goals);
}
