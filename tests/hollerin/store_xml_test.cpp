#include "hollerin/store_xml.h"

#include <gtest/gtest.h>

#include <pugixml.hpp>

#include "hollerin/sample_values.h"

namespace {

using namespace HOLLERIN;

std::optional<Values> Parse(const std::string& bytes) {
  std::wstring reason;
  std::optional<Values> values = ParseStoreXml(bytes, reason);
  EXPECT_NE(values.has_value(), !reason.empty());
  return values;
}

std::string InConfiguration(const std::string& content) {
  return "<configuration version=\"1\">" + content + "</configuration>";
}
std::string InSection(const std::string& content) {
  return InConfiguration("<section name=\"s\">" + content + "</section>");
}

TEST(StoreXml, RestoresEverything) {
  for (const Values& values : {Values{}, SmallValues(), NastyValues()}) {
    EXPECT_EQ(Parse(FormatStoreXml(values)), values);
  }
}

TEST(StoreXml, LooksAsDocumented) {
  const Values values = {{L"Options",
                          {{L"Flag", true},
                           {L"Max", std::int32_t{7}},
                           {L"Path", std::wstring(L"C:\\a & b")},
                           {L"Prefix", std::wstring(L" \\x\n")},
                           {L"Tail ", std::wstring(L"a b ")}}}};
  EXPECT_EQ(FormatStoreXml(values),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<configuration version=\"1\">\n"
            "  <section name=\"Options\">\n"
            "    <value name=\"Flag\" type=\"bool\">true</value>\n"
            "    <value name=\"Max\" type=\"int\">7</value>\n"
            "    <value name=\"Path\" type=\"string\">C:\\a &amp; b</value>\n"
            "    <value name=\"Prefix\" type=\"string\" escaped=\"true\">"
            "\\u{20}\\\\x\\u{A}</value>\n"
            "    <value escaped-name=\"Tail\\u{20}\" type=\"string\" escaped=\"true\">a "
            "b\\u{20}</value>\n"
            "  </section>\n"
            "</configuration>\n");
}

TEST(StoreXml, NoDamageIsTakenForOtherValues) {
  const std::string bytes = FormatStoreXml(SmallValues());
  const std::size_t rootEnd = bytes.rfind('>');
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const std::optional<Values> cut = Parse(bytes.substr(0, i));
    EXPECT_EQ(cut.has_value(), i > rootEnd) << "cut at " << i;
    for (const char character : {'\0', '\x01', '\xFF', '\xC3', '<', '&'}) {
      std::string changed = bytes;
      changed[i] = character;
      std::wstring reason;
      // What still reads must be what a second writing and reading keeps.
      if (const auto values = ParseStoreXml(changed, reason)) {
        EXPECT_EQ(Parse(FormatStoreXml(*values)), values) << "changed at " << i;
      }
    }
  }
}

TEST(StoreXml, RefusesWhatItWouldLose) {
  const std::string value = "<value name=\"k\" type=\"int\">1</value>";
  ASSERT_TRUE(Parse(InSection(value)));
  const std::string refused[] = {
      "",
      "text",
      "<settings/>",
      "<configuration/>",
      "<configuration version=\"2\"/>",
      "<configuration version=\"1\" more=\"x\"/>",
      "<configuration version=\"1\" version=\"1\"/>",
      InSection(value) + InSection(value),
      InSection(value) + "tail",
      "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>" + InSection(value),
      "<!DOCTYPE configuration [<!ENTITY a \"b\">]>" + InSection(value),
      "\xFF\xFE<\0c\0",
      InConfiguration("<group name=\"x\"/>"),
      InConfiguration("<section/>"),
      InConfiguration("<section name=\"a\" escaped-name=\"a\"/>"),
      InConfiguration("<section escaped-name=\"\\u{}\"/>"),
      InConfiguration("stray"),
      InSection("stray" + value),
      InSection(value + value),
      InConfiguration("<section name=\"s\">" + value + "</section><section name=\"s\">" + value +
                      "</section>"),
      InSection("<value name=\"k\">1</value>"),
      InSection("<value name=\"k\" type=\"double\">1</value>"),
      InSection("<value name=\"k\" type=\"int\">1.5</value>"),
      InSection("<value name=\"k\" type=\"int\">2147483648</value>"),
      InSection("<value name=\"k\" type=\"int\"/>"),
      InSection("<value name=\"k\" type=\"bool\">yes</value>"),
      InSection("<value name=\"k\" type=\"string\"><b>x</b></value>"),
      InSection("<value name=\"k\" type=\"string\" escaped=\"no\">x</value>"),
      InSection("<value name=\"k\" type=\"string\" escaped=\"true\">\\n</value>"),
      InSection("<value name=\"k\" type=\"string\" escaped=\"true\">\\u{123456789}</value>"),
      InSection("<value name=\"k\" type=\"string\">&unknown;</value>"),
      InSection("<value name=\"k\" type=\"string\">a&#0;b</value>"),
      InSection("<value name=\"k\" type=\"string\">a&#xD800;b</value>"),
      InSection("<value name=\"k\" type=\"string\">a & b</value>"),
      InSection("<value name=\"k\" type=\"string\">\xC0\x80</value>"),
      InSection("<value name=\"k\" type=\"string\">\xED\xA0\x80</value>"),
      InSection("<value name=\"k\" type=\"string\">a" + std::string(1, '\0') + "b</value>"),
      InSection(value) + std::string("\0more", 5),
  };
  for (const std::string& bytes : refused) EXPECT_FALSE(Parse(bytes)) << bytes;
}

TEST(StoreXml, ReadsWhatAPersonMayWrite) {
  const Values values = {{L"s", {{L"k", std::wstring(L"a b & c")}, {L"l", std::int32_t{1}}}}};
  EXPECT_EQ(
      Parse("\xEF\xBB\xBF<?xml version='1.0' encoding='utf-8'?><!-- note & more -->\n\n"
            "<configuration version='1'><section name='s'>\n"
            "<value type='string' name='k'>a<!-- --> <![CDATA[b & ]]>c</value></section><?x y?>\n"
            "<section name='&#115;'><value name='l' type='int'>1</value></section>"
            "<section name='empty'></section></configuration>\n\n"),
      values);
}

TEST(StoreXml, SurvivesDeepNestingAndManyElements) {
  std::string deep;
  for (int i = 0; i < 200000; ++i) deep += "<section name=\"a\">";
  EXPECT_FALSE(Parse(InConfiguration(deep)));
  std::string closed = deep;
  for (int i = 0; i < 200000; ++i) closed += "</section>";
  EXPECT_FALSE(Parse(InConfiguration(closed)));
}

TEST(StoreXml, AReasonNamesTheFaultAndItsPlace) {
  std::wstring reason;
  EXPECT_FALSE(ParseStoreXml("<configuration version=\"1\"><section></configuration>", reason));
  const pugi::xml_parse_result expected =
      pugi::xml_document().load_string("<configuration version=\"1\"><section></configuration>");
  const std::string description = expected.description();
  EXPECT_NE(reason.find(std::wstring(description.begin(), description.end())), reason.npos);
  EXPECT_NE(reason.find(std::to_wstring(expected.offset)), reason.npos);
}

}  // namespace
