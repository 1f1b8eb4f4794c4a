// The history dialogs, used as a person would.

#include "drive/session.h"

namespace {

constexpr int kOk = 1, kCancel = 2;
constexpr int kAll = 5004, kFileName = 5005, kLookIn = 5001, kContaining = 5002, kClear = 35001;
constexpr int kList = 5326, kEdit = 5658;

void Open(Session& session, const char* entry) { session.Do({{"do", "open"}, {"entry", entry}}); }

void Pick(Session& session, int row) {
  session.Do({{"do", "pick"}, {"control", kList}, {"index", row}});
}

/// Clicks the button that clears; the status returned.
int Clear(Session& session) {
  session.TakeEvents();
  session.Click(kClear);
  const std::vector<Json> events = session.TakeEvents();
  return events.size() == 1 ? events.front()["status"].get<int>() : -1;
}

TEST(History, IsEditedClearedAndSaved) {
  const TemporaryFolder data;
  {
    Session session(data);
    Open(session, "OpenEditHistoryDialog");
    const Json list = session.Get(kList);
    EXPECT_EQ(list["kind"], "listbox");
    EXPECT_EQ(list["index"], 0);
    ASSERT_EQ(list["items"].size(), 15U);
    for (const int separator : {3, 12}) EXPECT_EQ(list["items"][separator], "");
    EXPECT_EQ(session.Get(kEdit)["multiline"], true);
    session.Type(kEdit, "*.txt\n*.cpp\n");
    Pick(session, 3);
    EXPECT_EQ(session.Get(kList)["index"], 3);
    EXPECT_EQ(session.Get(kEdit)["text"], "*.txt\n*.cpp\n");
    Pick(session, 2);
    session.Type(kEdit, "/home");
    Pick(session, 0);
    EXPECT_EQ(session.Get(kEdit)["text"], "*.txt\n*.cpp");
    EXPECT_EQ(session.End(kOk), 0);
    EXPECT_EQ(session.Dump("history"), Json({{"RecentFileName", {{"0", "*.txt"}, {"1", "*.cpp"}}},
                                             {"RecentFolders", {{"0", "/home"}}}}));
    EXPECT_EQ(session.Close(), 0);
  }
  Session session(data);
  Open(session, "OpenClearHistoryDialog");
  // All is chosen until the user chose otherwise.
  EXPECT_EQ(session.Get(kAll)["checked"], 1);
  session.Click(kAll);
  session.Click(kFileName);
  session.Click(kContaining);
  EXPECT_EQ(session.Get(kLookIn)["checked"], 1);
  EXPECT_EQ(Clear(session), 0);
  EXPECT_EQ(session.Dump("history"), Json({{"RecentFileName", {{"0", "*.txt"}, {"1", "*.cpp"}}}}));
  EXPECT_EQ(session.Dump("config")["ClearHistory"],
            Json({{"FileName", false}, {"LookIn", true}, {"Containing", false}, {"All", false}}));
  EXPECT_EQ(session.Close(), 0);
}

TEST(History, CancelChangesNothing) {
  const TemporaryFolder data;
  Session session(data);
  session.Write("history", "RecentFileName", "0", "*.txt");
  const Json before = session.Dump("history");
  Open(session, "OpenEditHistoryDialog");
  session.Type(kEdit, "other");
  Pick(session, 1);
  EXPECT_EQ(session.End(kCancel), 1);
  Open(session, "OpenClearHistoryDialog");
  EXPECT_EQ(session.End(kCancel), 1);
  EXPECT_EQ(session.Dump("history"), before);
  EXPECT_FALSE(session.Dump("config").contains("ClearHistory"));
}

}  // namespace
