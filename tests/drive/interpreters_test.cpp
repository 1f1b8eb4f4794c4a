// The verb "interpreters" and the machine's facts behind it.

#include "drive/session.h"

namespace {

Json Entry(const std::string& key, const std::string& type) {
  return {{"name", "Caf\u00e9 " + key}, {"key", key},       {"extensions", "a, .b,,"},
          {"info", "line\n2"},          {"type", type},     {"enabled", true},
          {"optionA", false},           {"document", true}, {"optionC", true}};
}

Json Entries(Session& session) { return session.Do({{"do", "interpreters"}})["entries"]; }

TEST(Interpreters, AListIsStoredAndReadBack) {
  const TemporaryFolder data;
  const Json machine = {{"ifilters", Json::array()}};
  const Json list = {Entry("b", "ifilter"), Entry("a*1", "unheard of"), Entry("\U0001F600", "")};
  {
    Session session(data, machine);
    EXPECT_GE(Entries(session).size(), 60U);
    EXPECT_EQ(session.Dump("config"), Json::object());
    EXPECT_EQ(session.Do({{"do", "interpreters"}, {"set", list}})["entries"], list);
    EXPECT_EQ(session.Close(), 0);
  }
  Session session(data, machine);
  EXPECT_EQ(Entries(session), list);
  session.Open();
  EXPECT_EQ(session.Do({{"do", "interpreters"}, {"set", Json::array()}})["entries"], Json::array());
  EXPECT_EQ(session.End(2), 1);
  EXPECT_EQ(Entries(session), list) << "Cancel brings the configuration back";
  const Json shortForm = session.Do({{"do", "interpreters"}, {"set", {{{"key", "k"}}}}});
  EXPECT_EQ(shortForm["entries"][0]["name"], "");
  EXPECT_EQ(shortForm["entries"][0]["enabled"], false);
}

TEST(Interpreters, BadListsAreRefusedByNameAndChangeNothing) {
  const TemporaryFolder data;
  Session session(data);
  const Json good = session.Do({{"do", "interpreters"}, {"set", {Entry("k", "t")}}})["entries"];
  const std::pair<Json, const char*> kSets[] = {
      {"text", "list of objects"},
      {{1}, "list of objects"},
      {{Entry("x", "t"), {{"key", 7}}}, "item 1"},
      {{{{"enabled", 1}}}, "true or false"},
      {{{{"kee", "x"}}}, "\"kee\""},
  };
  for (const auto& [set, named] : kSets) {
    const std::string error = session.Refused({{"do", "interpreters"}, {"set", set}});
    EXPECT_NE(error.find(named), std::string::npos) << error;
    EXPECT_EQ(Entries(session), good);
  }
}

TEST(Interpreters, TheMachineFileStatesTheFilters) {
  const TemporaryFolder data;
  Session session(data, {{"ifilters",
                          {{{"extension", "doc"}, {"name", "Words"}, {"location", "/w"}},
                           {{"extension", "txt"}, {"name", "Plain"}, {"text", true}}}}});
  const Json entries = Entries(session);
  std::vector<Json> filters;
  for (const Json& entry : entries) {
    if (entry["type"] == "ifilter" && entry["extensions"] != "") filters.push_back(entry);
  }
  ASSERT_EQ(filters.size(), 2U) << entries;
  EXPECT_EQ(filters[0]["name"], "Words");
  EXPECT_EQ(filters[0]["extensions"], "doc");
  EXPECT_EQ(filters[1]["name"], "Plain");
}

}  // namespace
