#include "platform/gdi.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QBuffer>
#include <QComboBox>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QSlider>
#include <QTest>
#include <QWheelEvent>

#include "platform/messages.h"
#include "platform/qt/gdi_types.h"
#include "platform/qt/peer.h"

namespace {

TEST(Conversions, TextsTravelBothWays) {
  EXPECT_EQ(ToQt(L"a\r\nb\n&c \U0001F50D"), QString::fromUtf8("a\nb\n&c \xF0\x9F\x94\x8D"));
  EXPECT_EQ(FromQt(ToQt(L"\u00e4 \U0010FFFF")), L"\u00e4 \U0010FFFF");
  const wchar_t bad[] = {static_cast<wchar_t>(0x110000), L'x', static_cast<wchar_t>(0xDC00), 0};
  EXPECT_EQ(FromQt(ToQt(bad)), L"\xFFFDx\xFFFD");
}

TEST(Fonts, HaveTheHeightThatWasAskedFor) {
  LOGFONTW description;
  description.lfFaceName = L"Tahoma";
  for (const int height : {10, 25, 60}) {
    description.lfHeight = height;
    CFont font;
    EXPECT_TRUE(font.IsEmpty());
    EXPECT_TRUE(font.CreateFontIndirect(description));
    EXPECT_FALSE(font.IsEmpty());
    EXPECT_LE(font.GetHeight(), height);
    EXPECT_GE(font.GetHeight(), height - 2);
    const CFont copy = font;
    EXPECT_EQ(copy.Get(), font.Get());
  }
  description.lfHeight = -25;
  description.lfWeight = FW_BOLD;
  CFont font;
  EXPECT_TRUE(font.CreateFontIndirect(description));
  EXPECT_EQ(ToQtFont(font).pixelSize(), 25);
  EXPECT_TRUE(ToQtFont(font).bold());
  for (const LONG extreme : {LONG{-2147483647 - 1}, LONG{2147483647}}) {
    description.lfHeight = extreme;
    EXPECT_TRUE(font.CreateFontIndirect(description));
    EXPECT_GT(font.GetHeight(), 500);
  }
  EXPECT_TRUE(font.CreateDialogFont());
  EXPECT_EQ(ToQtFont(font), QApplication::font());
  EXPECT_EQ(CFont().GetHeight(), font.GetHeight());
}

/// The box of pixels that are not white.
QRect Inked(const QImage& image) {
  QRect ink;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y) != QColor(Qt::white)) ink |= QRect(x, y, 1, 1);
    }
  }
  return ink;
}

QImage Drawn(const wchar_t* text, const CRect& rect, UINT format) {
  QImage image(200, 100, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  QFont font = painter.font();
  font.setPixelSize(14);
  painter.setFont(font);
  QtPainterDC(painter).DrawText(text, rect, format);
  return image;
}

TEST(Drawing, TextIsPlacedAsTheFormatSays) {
  const CRect rect(20, 10, 180, 90);
  const QRect top = Inked(Drawn(L"Hxg", rect, DT_LEFT));
  EXPECT_TRUE(QRect(20, 10, 160, 80).contains(top));
  EXPECT_LT(top.bottom(), 40);
  const QRect middle = Inked(Drawn(L"Hxg", rect, DT_SINGLELINE | DT_VCENTER));
  EXPECT_NEAR(middle.center().y(), 50, 6);
  EXPECT_NEAR(Inked(Drawn(L"HxH", rect, DT_CENTER)).center().x(), 100, 3);
  EXPECT_EQ(Inked(Drawn(L"Hxg", rect, DT_VCENTER)), top) << "only a single line is centred";

  const wchar_t* words = L"one two three four five six seven eight nine ten";
  EXPECT_GT(Inked(Drawn(words, rect, DT_WORDBREAK)).height(), 2 * top.height());
  const QRect elided = Inked(Drawn(words, rect, DT_SINGLELINE | DT_END_ELLIPSIS));
  EXPECT_LT(elided.height(), 2 * top.height());
  EXPECT_LE(elided.right(), 180);
  EXPECT_NE(Drawn(words, rect, DT_SINGLELINE | DT_END_ELLIPSIS), Drawn(words, rect, DT_SINGLELINE));
  EXPECT_EQ(Drawn(L"S&ave && go&", rect, DT_LEFT), Drawn(L"Save && go", rect, DT_LEFT));
  EXPECT_NE(Drawn(L"Save && go", rect, DT_LEFT), Drawn(L"Save  go", rect, DT_LEFT));
}

TEST(Drawing, ASurfaceGivesThePainterBackAsItWas) {
  QImage image(20, 20, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setPen(Qt::green);
  {
    QtPainterDC surface(painter);
    surface.SetTextColor(RGB(200, 0, 0));
    surface.DrawText(L"x", CRect(0, 0, 20, 20), DT_LEFT);
    surface.FillSolidRect(CRect(0, 0, 20, 20), RGB(255, 255, 255));
    surface.FillSolidRect(CRect(5, 6, 10, 8), RGB(1, 2, 3));
    EXPECT_EQ(surface.GetTextExtent(L"&wide").cx, surface.GetTextExtent(L"wide").cx);
    EXPECT_GT(surface.GetTextExtent(L"wide").cx, surface.GetTextExtent(L"w").cx);
  }
  EXPECT_EQ(painter.pen().color(), QColor(Qt::green));
  EXPECT_EQ(FromQt(image.pixelColor(5, 6)), RGB(1, 2, 3));
  EXPECT_EQ(FromQt(image.pixelColor(9, 7)), RGB(1, 2, 3));
  EXPECT_EQ(FromQt(image.pixelColor(10, 8)), RGB(255, 255, 255)) << "the edges lie outside";
}

TEST(Drawing, AWindowThatIsGoneTakesNoInk) {
  CWnd window;
  CPaintDC surface(&window);
  surface.DrawText(L"x", CRect(0, 0, 20, 20), DT_LEFT);
  surface.FillSolidRect(CRect(0, 0, 20, 20), RGB(0, 0, 0));
  EXPECT_GT(surface.GetTextExtent(L"x").cx, 0);
}

TEST(Screen, ColoursAndCapabilitiesComeFromTheToolkit) {
  const QPalette palette = QApplication::palette();
  EXPECT_EQ(GetSysColor(COLOR_WINDOW), FromQt(palette.color(QPalette::Base)));
  EXPECT_EQ(GetSysColor(COLOR_BTNFACE), FromQt(palette.color(QPalette::Window)));
  EXPECT_NE(GetSysColor(COLOR_GRAYTEXT), GetSysColor(COLOR_WINDOWTEXT));
  EXPECT_EQ(FromQt(QColor(1, 2, 3)), RGB(1, 2, 3));
  EXPECT_EQ(GetScreenCaps(LOGPIXELSX),
            qRound(QGuiApplication::primaryScreen()->logicalDotsPerInchX()));
  EXPECT_GE(GetScreenCaps(BITSPIXEL) * GetScreenCaps(PLANES), 24);
}

QByteArray Png(int width, int height) {
  QImage image(width, height, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  for (int x = 0; x < width; x += height) image.setPixelColor(x, 0, QColor(x, 7, 9));
  QByteArray bytes;
  QBuffer buffer(&bytes);
  image.save(&buffer, "PNG");
  return bytes;
}

std::span<const std::byte> BytesOf(const QByteArray& bytes) {
  return std::as_bytes(std::span(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

TEST(Images, AStripIsCutIntoImages) {
  CBCGPPngImage strip;
  EXPECT_EQ(strip.GetSize(), CSize(0, 0));
  EXPECT_FALSE(strip.Load(5507)) << "no module is current";
  const QByteArray png = Png(48, 16);
  ASSERT_TRUE(strip.LoadFromMemory(BytesOf(png)));
  EXPECT_EQ(strip.GetSize(), CSize(48, 16));
  EXPECT_FALSE(strip.LoadFromMemory(BytesOf(png).first(30)));
  EXPECT_EQ(strip.GetSize(), CSize(48, 16)) << "a damaged image replaces nothing";

  CImageList list;
  EXPECT_EQ(list.Add(strip), -1) << "the list was not created";
  EXPECT_FALSE(list.Create(0, 16, ILC_COLOR32, 0, 4));
  ASSERT_TRUE(list.Create(16, 16, ILC_COLOR32, 0, 4));
  EXPECT_EQ(list.Add(strip), 0);
  EXPECT_EQ(list.Add(strip), 3);
  EXPECT_EQ(list.GetImageCount(), 6);
  EXPECT_EQ(list.GetImageSize(), CSize(16, 16));
  const QImage third = list.Get()->images[5].toImage();
  EXPECT_EQ(third.size(), QSize(16, 16));
  EXPECT_EQ(third.pixelColor(0, 0), QColor(32, 7, 9));
  EXPECT_EQ(third.pixelColor(5, 5).alpha(), 0);
  CBCGPPngImage narrow;
  ASSERT_TRUE(narrow.LoadFromMemory(BytesOf(Png(15, 16))));
  EXPECT_EQ(list.Add(narrow), -1);
}

/// A scrolled area's content that takes every wheel event that gets to it.
struct Scrolled : QWidget {
  int asked = 0;
  void wheelEvent(QWheelEvent* event) override {
    ++asked;
    event->accept();
  }
};

void TurnWheel(QWidget& widget) {
  const QPointF middle = QRectF(widget.rect()).center();
  QWheelEvent wheel(middle, widget.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QSpontaneKeyEvent::setSpontaneous(&wheel);
  QApplication::sendEvent(&widget, &wheel);
}

TEST(Wheel, ChangesOnlyTheControlThatHasTheFocus) {
  Scrolled window;
  QWidget page(&window);
  QLineEdit elsewhere(&page);
  QComboBox combo(&page), editable(&page);
  QSlider slider(Qt::Horizontal, &page);
  editable.setEditable(true);
  for (QComboBox* box : {&combo, &editable}) box->addItems({"a", "b", "c"});
  slider.setRange(0, 100);
  slider.setValue(50);
  window.show();
  window.activateWindow();
  elsewhere.setFocus();
  QApplication::processEvents();

  const auto turnAll = [&] {
    for (QWidget* widget : {static_cast<QWidget*>(&combo), static_cast<QWidget*>(&editable),
                            static_cast<QWidget*>(&slider)}) {
      TurnWheel(*widget);
    }
  };
  turnAll();
  EXPECT_TRUE(elsewhere.hasFocus()) << "the wheel gives no focus";
  EXPECT_EQ(window.asked, 3);
  EXPECT_EQ(combo.currentIndex(), 0);
  EXPECT_EQ(editable.currentIndex(), 0);
  EXPECT_EQ(slider.value(), 50);

  combo.setFocus();
  turnAll();
  EXPECT_EQ(combo.currentIndex(), 1);
  editable.setFocus();
  turnAll();
  EXPECT_EQ(editable.currentIndex(), 1);
  slider.setFocus();
  turnAll();
  EXPECT_NE(slider.value(), 50);
  EXPECT_EQ(combo.currentIndex(), 1);
  EXPECT_EQ(editable.currentIndex(), 1);

  QScrollBar bar(Qt::Vertical, &page);
  bar.setRange(0, 100);
  bar.show();
  TurnWheel(bar);
  EXPECT_NE(bar.value(), 0) << "a scroll bar needs no focus";
}

}  // namespace
