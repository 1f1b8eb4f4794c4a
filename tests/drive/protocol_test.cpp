// The drive port's lines, without a dialog where one is not needed.

#include "drive/session.h"

namespace {

TEST(Protocol, BadLinesAreRefusedByNameAndChangeNothing) {
  const TemporaryFolder data;
  Session session(data);
  session.Write("config", "Options", "Kept", 7);
  const struct {
    const char* line;
    const char* named;  // What the error must mention.
  } kLines[] = {
      {"", "JSON"},
      {"{", "JSON"},
      {"[1]", "object"},
      {"\xff\xfe", "JSON"},
      {R"({"entry":"ShowMessage"})", "\"do\""},
      {R"({"do":7})", "\"do\""},
      {R"({"do":"opne","entry":"ShowMessage"})", "\"open\""},
      {R"({"do":"open"})", "\"entry\""},
      {R"({"do":"open","entry":1})", "a text"},
      {R"({"do":"open","entry":"OpenConfigDialg"})", "\"OpenConfigDialog\""},
      {R"({"do":"open","entry":"OpenConfigDialog","page":"4"})", "whole number"},
      {R"({"do":"open","entry":"OpenConfigDialog","page":4.5})", "whole number"},
      {R"({"do":"open","entry":"OpenConfigDialog","page":4294967296})", "whole number"},
      {R"({"do":"open","entry":"OpenConfigDialog","pge":4})", "\"page\""},
      {R"({"do":"windows","wait":1})", "\"wait\""},
      {R"({"do":"click"})", "\"control\""},
      {R"({"do":"click","control":1,"nth":1})", "exactly one"},
      {R"({"do":"click","control":1})", "No window"},
      {R"({"do":"get","control":1,"template":5526})", "5526"},
      {R"({"do":"pick","control":1})", "exactly one"},
      {R"({"do":"write",)"
       R"("store":"confg","section":"Options","key":"Kept","type":"int","value":8})",
       "\"config\""},
      {R"({"do":"write",)"
       R"("store":"config","section":"Options","key":"Kept","type":"long","value":8})",
       "\"long\""},
      {R"({"do":"write",)"
       R"("store":"config","section":"Options","key":"Kept","type":"int","value":"8"})",
       "whole number"},
      {R"({"do":"write",)"
       R"("store":"config","section":"Options","key":"Kept","type":"bool","value":1})",
       "true or false"},
      {R"({"do":"write",)"
       R"("store":"config","section":"Options","key":"Kept","type":"int"})",
       "\"value\""},
      {R"({"do":"press","button":"OK"})", "No window"},
      {R"({"do":"dismiss"})", "No window"},
  };
  for (const auto& row : kLines) {
    const Json reply = session.Send(std::string(row.line));
    ASSERT_TRUE(reply.is_object()) << row.line;
    EXPECT_EQ(reply["ok"], false) << row.line;
    EXPECT_NE(reply.value("error", "").find(row.named), std::string::npos) << row.line << reply;
  }
  EXPECT_EQ(session.Dump("config"), Json({{"Options", {{"Kept", 7}}}}));
  EXPECT_TRUE(session.Top().is_null());
  EXPECT_EQ(session.Close(), 0);
}

TEST(Protocol, StoresAnswerInTheTypeLastWritten) {
  const TemporaryFolder data;
  Session session(data);
  for (const char* store : {"config", "master", "history", "fourth"}) {
    EXPECT_EQ(session.Dump(store), Json::object()) << store;
    session.Write(store, "A", "flag", true);
    session.Write(store, "A", "number", -2147483647 - 1);
    session.Write(store, "B", "text", "caf\u00e9 \U0001F600\n2");
    session.Write(store, "A", "flag", 3);
    EXPECT_EQ(session.Dump(store), Json({{"A", {{"flag", 3}, {"number", -2147483647 - 1}}},
                                         {"B", {{"text", "caf\u00e9 \U0001F600\n2"}}}}));
    Json read = {{"do", "read"}, {"store", store}, {"section", "A"}, {"key", "absent"}};
    read.update({{"type", "string"}, {"default", "none"}});
    EXPECT_EQ(session.Do(read)["value"], "none");
    read.update({{"key", "number"}, {"type", "int"}, {"default", 5}});
    EXPECT_EQ(session.Do(read)["value"], -2147483647 - 1);
  }
}

TEST(Protocol, WrittenValuesReachTheNextRun) {
  const TemporaryFolder data;
  Json before;
  {
    Session session(data);
    session.Write("history", "List", "0", "needle");
    before = session.Dump("history");
    EXPECT_EQ(session.Do({{"do", "quit"}}), Json({{"ok", true}}));
    EXPECT_EQ(session.Close(), 0);
  }
  Session session(data);
  EXPECT_EQ(session.Dump("history"), before);
}

TEST(Protocol, EveryRequestOfABatchIsAnsweredInOrder) {
  const TemporaryFolder data;
  Session session(data);
  const Json reply =
      session.Send(std::string("{\"do\":\"wait\",\"ms\":1}\n{\"do\":\"bad\"}\n{\"do\":"
                               "\"clipboard\"}\n{\"do\":\"dump\",\"store\":\"fourth\"}"));
  EXPECT_EQ(reply, Json({{"ok", true}}));
  // The three replies left are read one request late; the last three are these requests' own.
  EXPECT_EQ(session.Send(std::string("{\"do\":\"windows\"}"))["ok"], false);
  EXPECT_TRUE(session.Send(std::string("{\"do\":\"windows\"}")).contains("text"));
  EXPECT_TRUE(session.Send(std::string("{\"do\":\"windows\"}")).contains("values"));
  EXPECT_TRUE(session.Send(std::string("{\"do\":\"windows\"}")).contains("windows"));
}

TEST(Protocol, QuitCancelsEveryWindowTopFirst) {
  const TemporaryFolder data;
  Session session(data);
  session.Write("config", "Options", "OnePhaseSearch", 1);
  session.Open(27);
  session.Click(5282);
  session.Click(5000);
  ASSERT_EQ(session.Top()["kind"], "message");
  EXPECT_EQ(session.Do({{"do", "quit"}}), Json({{"ok", true}}));
  const std::vector<Json> events = session.TakeEvents();
  ASSERT_EQ(events.size(), 1U);
  EXPECT_EQ(events[0], Json({{"event", "returned"}, {"entry", "OpenConfigDialog"}, {"status", 1}}));
  EXPECT_EQ(session.Close(), 0);
  EXPECT_EQ(RunHost(data, {"get", "config", "Options", "OnePhaseSearch"}).output, "1\n");
}

TEST(Protocol, EndOfInputCancelsToo) {
  const TemporaryFolder data;
  Session session(data);
  session.Open();
  EXPECT_EQ(session.Close(), 0);
  const std::vector<Json> events = session.TakeEvents();
  ASSERT_EQ(events.size(), 1U);
  EXPECT_EQ(events[0]["status"], 1);
}

TEST(Protocol, OnlyOneDialogAtATime) {
  const TemporaryFolder data;
  Session session(data);
  EXPECT_EQ(session.Do({{"do", "open"}, {"entry", "ShowMessage"}})["window"]["template"], 5515);
  EXPECT_NE(session.Refused({{"do", "open"}, {"entry", "ShowMessage"}}).find("open already"),
            std::string::npos);
  session.Do({{"do", "key"}, {"key", "Escape"}});
  const std::vector<Json> events = session.TakeEvents();
  ASSERT_EQ(events.size(), 1U);
  EXPECT_EQ(events[0], Json({{"event", "returned"}, {"entry", "ShowMessage"}, {"status", 0}}));
  EXPECT_TRUE(session.Top().is_null());
}

TEST(Protocol, AnActionThatIsNotWaitedForIsAnsweredAtOnce) {
  const TemporaryFolder data;
  Session session(data);
  const Json open = {{"do", "open"}, {"entry", "OpenConfigDialog"}, {"wait", false}};
  EXPECT_EQ(session.Send(open), Json({{"ok", true}}));
  session.Do({{"do", "wait"}, {"ms", 0}});
  ASSERT_EQ(session.Top()["kind"], "dialog");
  EXPECT_EQ(session.Send(Json{{"do", "cancel"}, {"wait", false}}), Json({{"ok", true}}));
  session.Do({{"do", "wait"}, {"ms", 0}});
  EXPECT_EQ(session.TakeEvents().size(), 1U);
  EXPECT_NE(session.Refused({{"do", "cancel"}, {"wait", false}}).find("No window"),
            std::string::npos);
}

TEST(Protocol, TheMessageIsCopiedAndShot) {
  const TemporaryFolder data;
  Session session(data);
  session.Do({{"do", "open"}, {"entry", "ShowMessage"}});
  EXPECT_EQ(session.Get(5041)["readonly"], true);
  session.Type(5041, "lost");
  EXPECT_EQ(session.Get(5041)["text"], "Testing");
  session.Click(5334);
  EXPECT_EQ(session.Do({{"do", "clipboard"}})["text"], "Testing");
  session.Do({{"do", "shot"}, {"file", data / "shot.png"}});
  EXPECT_EQ(ReadFile(data / "shot.png").substr(1, 3), "PNG");
  session.Refused({{"do", "shot"}, {"file", data / "none/shot.png"}});
}

}  // namespace
