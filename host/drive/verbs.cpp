#include "host/drive/verbs.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPointer>
#include <QTreeWidget>
#include <QWidget>

#include "host/drive/control_actions.h"
#include "host/drive/control_finder.h"
#include "host/drive/describe.h"
#include "host/drive/entry_runner.h"
#include "host/drive/filter_verb.h"
#include "host/drive/interpreter_verb.h"
#include "host/drive/list_rows.h"
#include "host/drive/picker_actions.h"
#include "host/drive/request.h"
#include "host/drive/request_error.h"
#include "host/drive/store_verbs.h"
#include "host/drive/term_verb.h"
#include "host/drive/tree_nodes.h"
#include "host/drive/window_actions.h"
#include "host/drive/window_stack.h"
#include "host/environment.h"

namespace {

using Context = DriveContext;

Plan Reply(const QJsonObject& fields) {
  return {{}, [fields] { return fields; }};
}

Plan Open(Context& context, const Request& request) {
  const QString entry = request.Text("entry");
  if (!EntryRunner::Names().contains(entry)) {
    throw RequestError(QStringLiteral("There is no entry point \"%1\"; there are %2.")
                           .arg(entry, NearCandidates(entry, EntryRunner::Names())));
  }
  if (request.Has("page") && entry != QLatin1String("OpenConfigDialog")) {
    throw RequestError(QStringLiteral("Only OpenConfigDialog has the argument \"page\"."));
  }
  if (request.Has("active") && entry != QLatin1String("OpenSearchFilterList")) {
    throw RequestError(QStringLiteral("Only OpenSearchFilterList has the argument \"active\"."));
  }
  if (context.entries.Running() || context.windows.Top() != nullptr) {
    throw RequestError(QStringLiteral("A dialog is open already."));
  }
  if (QString error; !context.entries.Load(error)) throw RequestError(error);
  EntryArguments arguments;
  if (request.Has("page")) arguments.page = request.Int("page");
  if (request.Has("active")) arguments.active = request.arguments["active"].toBool();
  return {[&context, entry, arguments] { context.returned(context.entries.Run(entry, arguments)); },
          [&context] {
            const QWidget* top = context.entries.Running() ? context.windows.Top() : nullptr;
            return QJsonObject{
                {"window", top != nullptr ? QJsonValue(DescribeWindow(top)) : QJsonValue()}};
          }};
}

Plan Windows(Context& context, const Request&) {
  return Reply({{"windows", DescribeWindows(context.windows)}});
}

Plan Controls(Context& context, const Request& request) {
  if (request.Has("template")) {
    const QWidget* dialog = FindDialog(context.windows, request.Int("template"));
    return Reply({{"controls", DescribeControls(ControlsOf(dialog))}});
  }
  const QWidget* dialog = TopDialog(context.windows);
  QList<QWidget*> controls;
  if (const QWidget* page = ShownPage(dialog)) controls << ControlsOf(page);
  controls << ControlsOf(dialog);
  return Reply({{"controls", DescribeControls(controls)}});
}

Plan Get(Context& context, const Request& request) {
  return Reply(DescribeControl(FindControl(context.windows, request)));
}

// A plan for an action on the control that the request names.
template <class Action>
Plan OnControl(Context& context, const Request& request, Action action) {
  QWidget* control = FindControl(context.windows, request);
  CheckUsable(context.windows, control);
  return {[control, action] { action(control); }, {}};
}

Plan Click(Context& context, const Request& request) {
  return OnControl(context, request, ClickControl);
}

Plan Type(Context& context, const Request& request) {
  return OnControl(context, request,
                   [text = request.Text("text")](QWidget* control) { TypeInto(control, text); });
}

Plan Pick(Context& context, const Request& request) {
  std::optional<int> index;
  if (request.Has("index")) index = request.Int("index");
  return OnControl(context, request, [index, text = request.Text("text")](QWidget* control) {
    PickRow(control, index, text);
  });
}

Plan Slide(Context& context, const Request& request) {
  return OnControl(context, request,
                   [value = request.Int("value")](QWidget* control) { SlideTo(control, value); });
}

Plan Colour(Context& context, const Request& request) {
  return OnControl(context, request, [value = request.Int("value")](QWidget* control) {
    ChooseColour(control, value);
  });
}

Plan Rows(Context& context, const Request& request) {
  return Reply(DescribeRows(FindControl(context.windows, request)));
}

Plan Check(Context& context, const Request& request) {
  return OnControl(context, request, [row = request.Int("row"), request](QWidget* control) {
    CheckRow(control, row, request.arguments["on"].toBool());
  });
}

Plan Row(Context& context, const Request& request) {
  return OnControl(context, request, [request](QWidget* control) {
    ActOnRow(control, request.Int("row"), request.Text("action"));
  });
}

Plan Tree(Context& context, const Request&) {
  return Reply(DescribeTree(FindTree(context.windows)));
}

Plan Select(Context& context, const Request& request) {
  // The click may open a message box or end the dialog.
  const QPointer<QTreeWidget> tree = &FindTree(context.windows);
  CheckUsable(context.windows, tree);
  return {[tree, request] {
            if (request.Has("page")) {
              SelectPage(*tree, request.Int("page"));
            } else {
              SelectRow(*tree, request.Int("row"));
            }
          },
          [tree] {
            return QJsonObject{{"selected", tree != nullptr ? SelectedRow(*tree) : -1}};
          }};
}

Plan Press(Context& context, const Request& request) {
  return {[&context, text = request.Text("button")] { PressButton(context.windows, text); }, {}};
}

Plan DismissTop(Context& context, const Request&) {
  return {[&context] { Dismiss(context.windows); }, {}};
}

Plan Menu(Context& context, const Request& request) {
  return {
      [&context, command = request.Int("command")] { ChooseFromMenu(context.windows, command); },
      {}};
}

Plan Key(Context& context, const Request& request) {
  QWidget* control = nullptr;
  if (request.Has("control") || request.Has("nth")) {
    control = FindControl(context.windows, request);
    CheckUsable(context.windows, control);
  }
  return {[&context, control, key = request.Text("key")] {
            PressNamedKey(context.windows, key, control);
          },
          {}};
}

Plan Resize(Context& context, const Request& request) {
  const QSize size(request.Int("width"), request.Int("height"));
  return {[&context, size] { ResizeTop(context.windows, size); },
          [&context] {
            const QSize client = TopWindow(context.windows)->size();
            return QJsonObject{{"client", QJsonArray{client.width(), client.height()}}};
          }};
}

Plan Shot(Context& context, const Request& request) {
  ShootTop(context.windows, request.Text("file"));
  return Reply({});
}

Plan ClickNumber(Context& context, int number) {
  Request request{QStringLiteral("click"), {{"control", number}}};
  request.arguments["template"] = TemplateNumber(TopDialog(context.windows));
  return Click(context, request);
}

Plan Ok(Context& context, const Request&) { return ClickNumber(context, 1); }
Plan Cancel(Context& context, const Request&) { return ClickNumber(context, 2); }

Plan Log(Context& context, const Request&) {
  QJsonArray lines;
  for (const std::wstring& line : context.environment.GetLog().TakeLines()) {
    lines << QString::fromStdWString(line);
  }
  return Reply({{"lines", lines}});
}

Plan Clipboard(Context&, const Request&) {
  return Reply({{"text", QGuiApplication::clipboard()->text()}});
}

Plan Choose(Context& context, const Request& request) {
  const QString text = PickerText(context.windows, request.Texts("paths"));
  return {[&context, text] { ChooseInPicker(context.windows, text); }, {}};
}

QJsonArray ToArray(const std::vector<std::wstring>& texts) {
  QJsonArray array;
  for (const std::wstring& text : texts) array << QString::fromStdWString(text);
  return array;
}

Plan TakeOutside(Context& context, const Request&) {
  const Outside outside = context.environment.TakeOutside();
  return Reply({{"opened", ToArray(outside.opened)}, {"played", ToArray(outside.played)}});
}

Plan Wait(Context&, const Request& request) {
  if (request.Int("ms") < 0) throw RequestError(QStringLiteral("Nobody can wait that long ago."));
  return {[] {}, {}, request.Int("ms")};
}

Plan Read(Context& context, const Request& request) {
  return Reply({{"value", ReadStore(context.environment.GetStores(), request)}});
}

Plan Write(Context& context, const Request& request) {
  WriteStore(context.environment.GetStores(), request);
  return Reply({});
}

Plan Dump(Context& context, const Request& request) {
  return Reply({{"values", DumpStore(context.environment.GetStores(), request)}});
}

Plan Terms(Context& context, const Request& request) {
  return Reply({{"colours", TermColours(context.environment.GetStores(), request)}});
}

Plan Interpreters(Context& context, const Request& request) {
  return Reply({{"entries", ExchangeInterpreters(context.environment.GetStores(), request)}});
}

Plan Filters(Context& context, const Request& request) {
  HOLLERIN::Store& store = context.environment.GetStores().Get(kConfig);
  if (request.Has("set")) WriteFilters(store, request.arguments["set"]);
  return Reply({{"entries", ReadFilters(store)}});
}

struct Verb {
  const char* name;
  Plan (*make)(Context&, const Request&);
};

constexpr Verb kVerbs[] = {
    {"open", Open},
    {"windows", Windows},
    {"controls", Controls},
    {"get", Get},
    {"click", Click},
    {"type", Type},
    {"pick", Pick},
    {"slide", Slide},
    {"colour", Colour},
    {"rows", Rows},
    {"check", Check},
    {"row", Row},
    {"tree", Tree},
    {"select", Select},
    {"press", Press},
    {"dismiss", DismissTop},
    {"choose", Choose},
    {"outside", TakeOutside},
    {"menu", Menu},
    {"key", Key},
    {"resize", Resize},
    {"shot", Shot},
    {"ok", Ok},
    {"cancel", Cancel},
    // On the stores and the program.
    {"read", Read},
    {"write", Write},
    {"dump", Dump},
    {"terms", Terms},
    {"interpreters", Interpreters},
    {"filters", Filters},
    {"log", Log},
    {"clipboard", Clipboard},
    {"wait", Wait},
};

}  // namespace

Plan MakePlan(DriveContext& context, const Request& request) {
  for (const Verb& verb : kVerbs) {
    if (request.verb == QLatin1String(verb.name)) return verb.make(context, request);
  }
  throw RequestError(QStringLiteral("The verb \"%1\" cannot be carried out.").arg(request.verb));
}
