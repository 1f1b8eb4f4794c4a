#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include "platform/messages.h"
#include "platform/resource_script.h"
#include "resources/resource.h"

namespace {

constexpr int kStrings = -2;
constexpr int kCommon = -1;
/// Height of a closed combo box; a template gives the height with the list dropped.
constexpr int kClosedComboHeight = 12;

QByteArray ReadAll(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return file.readAll();
}

/// The numbers that a header of the resources gives to names matching the pattern.
std::vector<unsigned> NumbersOf(const char* header, const char* pattern) {
  const QString text = ReadAll(QString(SOURCE_FOLDER "/resources/") + header);
  std::vector<unsigned> numbers;
  auto matches = QRegularExpression(pattern).globalMatch(text);
  while (matches.hasNext()) numbers.push_back(matches.next().captured(1).toUInt());
  EXPECT_FALSE(numbers.empty());
  return numbers;
}

/// The texts of dialogs that the code asks for itself, by dialog.
std::map<int, std::set<int>> TextsOfTheCode() {
  const QString text = ReadAll(SOURCE_FOLDER "/resources/text_ids.h");
  std::map<int, std::set<int>> numbers;
  auto matches =
      QRegularExpression("constexpr DialogText \\w+ = \\{(\\d+), (\\d+)\\};").globalMatch(text);
  while (matches.hasNext()) {
    const auto match = matches.next();
    numbers[match.captured(1).toInt()].insert(match.captured(2).toInt());
  }
  EXPECT_FALSE(numbers.empty());
  return numbers;
}

/// The texts of the English language file by place and number; every number is there once.
using Texts = std::map<int, std::map<int, QString>>;

Texts ReadTexts() {
  Texts texts;
  QXmlStreamReader xml(ReadAll(SOURCE_FOLDER "/lang/lang-en.xml"));
  int place = 0;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    const int number = xml.attributes().value("n").toInt();
    if (xml.name() == QLatin1String("strings")) place = kStrings;
    if (xml.name() == QLatin1String("common")) place = kCommon;
    if (xml.name() == QLatin1String("menu")) place = number;  // No dialog has such a number.
    if (xml.name() == QLatin1String("dialog")) {
      place = number;
      EXPECT_EQ(texts.count(place), 0u) << "dialog " << place << " stands there twice";
    }
    if (xml.name() != QLatin1String("text")) continue;
    const QString text = xml.readElementText();
    EXPECT_FALSE(text.trimmed().isEmpty()) << place << " text " << number;
    EXPECT_TRUE(texts[place].emplace(number, text).second)
        << place << " text " << number << " stands there twice";
  }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  return texts;
}

/// Number of a placeholder; -1 for any other text.
int Placeholder(const std::wstring& text) {
  static const QRegularExpression form("^\\{(\\d+)\\}$");
  const auto match = form.match(QString::fromStdWString(text));
  return match.hasMatch() ? match.captured(1).toInt() : -1;
}

/// The letter that reaches a text by Alt, in lower case; null when it has none.
QChar Mnemonic(QString text) {
  text.remove("&&");
  const auto at = text.indexOf('&');
  return at >= 0 && at + 1 < text.size() ? text[at + 1].toLower() : QChar();
}

class TextsTest : public testing::Test {
 protected:
  void SetUp() override {
    bytes_ = ReadAll(BRISQUEL_RES);
    script_ = ResourceScript::Parse(
        {reinterpret_cast<const std::byte*>(bytes_.constData()), std::size_t(bytes_.size())},
        error_);
    ASSERT_NE(script_, nullptr) << error_.reason << " at " << error_.offset;
    texts_ = ReadTexts();
  }

  DialogTemplate Dialog(UINT id) {
    const auto dialog = script_->Dialog(id, error_);
    EXPECT_TRUE(dialog.has_value()) << id << ": " << error_.reason;
    return dialog.value_or(DialogTemplate());
  }

  /// Adds the mnemonics of a template; reports those that are taken already.
  void CollectMnemonics(UINT id, std::set<QChar>& taken) {
    for (const auto& item : Dialog(id).items) {
      const QChar letter = Mnemonic(texts_[int(id)][Placeholder(item.text)]);
      if (letter.isNull()) continue;
      EXPECT_TRUE(taken.insert(letter).second)
          << "template " << id << " control " << item.id << " repeats " << char(letter.toLatin1());
    }
  }

  QByteArray bytes_;
  std::unique_ptr<ResourceScript> script_;
  ResourceError error_;
  Texts texts_;
};

TEST_F(TextsTest, EveryPlaceholderHasATextAndEveryTextAPlaceholder) {
  auto ofTheCode = TextsOfTheCode();
  for (const UINT id : NumbersOf("resource.h", "#define IDD_\\w+ (\\d+)")) {
    std::set<int> placeholders = ofTheCode[int(id)];
    for (const auto& item : Dialog(id).items) {
      if (Placeholder(item.text) >= 0) placeholders.insert(Placeholder(item.text));
    }
    std::set<int> numbers;
    for (const auto& [number, text] : texts_[int(id)]) numbers.insert(number);
    EXPECT_EQ(placeholders, numbers) << "template " << id;
  }
}

TEST_F(TextsTest, MnemonicsAreUniqueOnAPageAndTheDialogAroundIt) {
  for (const UINT id : NumbersOf("resource.h", "#define IDD_\\w+ (\\d+)")) {
    std::set<QChar> taken;
    if ((Dialog(id).style & WS_CHILD) != 0) CollectMnemonics(IDD_MAIN_CONFIGURATION, taken);
    CollectMnemonics(id, taken);
  }
}

TEST_F(TextsTest, EveryNamedStringHasAText) {
  for (const unsigned number : NumbersOf("text_ids.h", "constexpr unsigned \\w+ = (\\d+);")) {
    EXPECT_EQ(texts_[kStrings].count(int(number)), 1u) << "string " << number;
  }
}

TEST_F(TextsTest, EveryTextOfTheCodeIsThere) {
  for (const auto& [dialog, numbers] : TextsOfTheCode()) {
    for (const int number : numbers) {
      EXPECT_EQ(texts_[dialog].count(number), 1u) << dialog << " text " << number;
    }
  }
}

TEST_F(TextsTest, EveryMenuItemHasAText) {
  const auto menu = script_->Menu(IDR_SEARCH_FILTER_MENU, error_);
  ASSERT_TRUE(menu.has_value() && menu->size() == 1) << error_.reason;
  std::set<int> placeholders = {Placeholder(menu->front().text)};
  for (const auto& item : menu->front().children) placeholders.insert(Placeholder(item.text));
  std::set<int> numbers;
  for (const auto& [number, text] : texts_[IDR_SEARCH_FILTER_MENU]) numbers.insert(number);
  EXPECT_EQ(placeholders, numbers);
}

TEST_F(TextsTest, EveryTooltipHasAText) {
  std::set<int> used;
  for (UINT id = 5000; id < 5600; ++id) {
    const auto tooltip = script_->String(id, error_);
    if (!tooltip || tooltip->empty()) continue;
    used.insert(Placeholder(*tooltip));
  }
  std::set<int> numbers;
  for (const auto& [number, text] : texts_[kCommon]) numbers.insert(number);
  EXPECT_EQ(used, numbers);
  EXPECT_EQ(script_->String(57344, error_), L"Configuration");
}

TEST_F(TextsTest, ControlsLieInsideTheirTemplate) {
  for (const UINT id : NumbersOf("resource.h", "#define IDD_\\w+ (\\d+)")) {
    const auto dialog = Dialog(id);
    for (const auto& item : dialog.items) {
      const int height = item.className == L"ComboBox" ? kClosedComboHeight : item.cy;
      EXPECT_TRUE(item.x >= 0 && item.y >= 0 && item.x + item.cx <= dialog.cx &&
                  item.y + height <= dialog.cy)
          << "template " << id << " control " << item.id;
    }
  }
}

TEST_F(TextsTest, ImagesHaveTheSizesThatTheDialogsExpect) {
  const std::map<UINT, QSize> sizes = {
      {IDR_TREE_IMAGES_16, {96, 16}},      {IDR_TREE_IMAGES_24, {144, 24}},
      {IDR_TREE_IMAGES_32, {192, 32}},     {IDR_TREE_IMAGES_48, {288, 48}},
      {IDR_SEARCH_FILTER_IMAGE, {48, 48}}, {IDR_MESSAGE_IMAGE, {75, 75}}};
  for (const auto& [id, size] : sizes) {
    const auto data = script_->Data(L"png", id);
    const auto image =
        QImage::fromData(reinterpret_cast<const uchar*>(data.data()), int(data.size()), "PNG");
    EXPECT_EQ(image.size(), size) << "image " << id;
  }
}

}  // namespace
