#include "window/item_view.h"

#include <gtest/gtest.h>

#include <QTest>

#include "window/elided_label.h"
#include "window/redisplay_clock.h"

namespace calvero::testing {
namespace {

constexpr int kPaintWaitMilliseconds = 10'000;

class CountedTile : public ItemView {
 public:
  using ItemView::ItemView;
  int paints = 0;

 protected:
  void paintEvent(QPaintEvent* event) override {
    ++paints;
    ItemView::paintEvent(event);
  }
};

class ItemViewTest : public ::testing::Test {
 protected:
  void show() {
    tile.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&tile, kPaintWaitMilliseconds));
  }

  RedisplayClock clock;
  CountedTile tile{QRect(0, 0, 150, 98), clock};
};

TEST_F(ItemViewTest, PlacesItsLabelByItsFrame) {
  ItemView parent(QRect(0, 0, 500, 500), clock);
  ItemView framed(QRect(30, 7, 150, 98), clock, &parent);
  EXPECT_EQ(framed.titleField(), nullptr);
  framed.initWithCoder();
  EXPECT_EQ(framed.titleField()->geometry(), QRect(20, 7, 130, 34));
  framed.move(90, 60);
  EXPECT_EQ(framed.titleField()->geometry(), QRect(20, 7, 130, 34));
}

TEST_F(ItemViewTest, PutsItsTitleIntoTheLabel) {
  tile.setTitle("early");
  tile.initWithCoder();
  EXPECT_EQ(tile.titleField()->text(), "");
  tile.setVolString();
  EXPECT_EQ(tile.titleField()->text(), "early");
  tile.setTitle("<b>late</b>");
  EXPECT_EQ(tile.titleField()->text(), "<b>late</b>");
  EXPECT_EQ(tile.titleField()->textFormat(), Qt::PlainText);
}

TEST_F(ItemViewTest, FillsOnlyWhatIsPaintedAndOnlyWhileSelected) {
  const QPoint spot(60, 90);
  const auto colourThere = [&](const QRegion& part) {
    QImage image(tile.size(), QImage::Format_RGB32);
    image.fill(Qt::green);
    tile.render(&image, part.boundingRect().topLeft(), part, QWidget::RenderFlags());
    return image.pixelColor(spot);
  };
  const QColor highlight = tile.palette().color(QPalette::Highlight);
  EXPECT_EQ(colourThere(tile.rect()), QColor(Qt::green));
  tile.setSelected(true);
  EXPECT_EQ(colourThere(tile.rect()), highlight);
  EXPECT_EQ(colourThere(QRect(0, 0, 10, 10)), QColor(Qt::green));
}

TEST_F(ItemViewTest, ShowsItsSelectionNotByColourAlone) {
  tile.initWithCoder();
  QPalette oneColour = tile.palette();
  oneColour.setColor(QPalette::Highlight, oneColour.color(QPalette::Window));
  oneColour.setColor(QPalette::HighlightedText, oneColour.color(QPalette::Text));
  tile.setPalette(oneColour);
  const QRect besideTitle(0, 2, 20, 30);
  const QImage plain = tile.grab(besideTitle).toImage();
  tile.setSelected(true);
  EXPECT_NE(tile.grab(besideTitle).toImage(), plain);
}

TEST_F(ItemViewTest, WritesASelectedTitleInTheFittingColour) {
  tile.initWithCoder();
  EXPECT_NE(tile.titleField()->foregroundRole(), QPalette::HighlightedText);
  tile.setSelected(true);
  EXPECT_EQ(tile.titleField()->foregroundRole(), QPalette::HighlightedText);
  tile.setSelected(false);
  EXPECT_NE(tile.titleField()->foregroundRole(), QPalette::HighlightedText);
}

TEST_F(ItemViewTest, IsPaintedAgainAndAgainWhileItIsShown) {
  show();
  const int before = tile.paints;
  EXPECT_TRUE(QTest::qWaitFor([&] { return tile.paints >= before + 3; }, kPaintWaitMilliseconds));
  EXPECT_TRUE(clock.isRunning());
}

TEST_F(ItemViewTest, RestsWhileItIsHiddenAndGoesOnWhenItIsShown) {
  show();
  tile.hide();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !clock.isRunning(); }, kPaintWaitMilliseconds));
  const int before = tile.paints;
  show();
  EXPECT_TRUE(QTest::qWaitFor([&] { return tile.paints >= before + 3; }, kPaintWaitMilliseconds));
}

TEST_F(ItemViewTest, RestsWhileItsWindowIsMinimised) {
  show();
  tile.showMinimized();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !clock.isRunning(); }, kPaintWaitMilliseconds));
  tile.showNormal();
  EXPECT_TRUE(QTest::qWaitFor([&] { return clock.isRunning(); }, kPaintWaitMilliseconds));
}

TEST_F(ItemViewTest, AsksForRedisplayWhenItsSelectionChanges) {
  show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return tile.paints > 0; }, kPaintWaitMilliseconds));
  // Only what was asked for is carried out, not what the clock would ask for in its time.
  const auto paintsAskedFor = [&] {
    const int before = tile.paints;
    QCoreApplication::sendPostedEvents();
    return tile.paints - before;
  };
  paintsAskedFor();
  tile.setSelected(true);
  EXPECT_TRUE(tile.selected());
  EXPECT_EQ(paintsAskedFor(), 1);
  tile.setSelected(true);
  EXPECT_EQ(paintsAskedFor(), 0) << "nothing has changed";
  tile.setSelected(false);
  EXPECT_EQ(paintsAskedFor(), 1);
}

TEST_F(ItemViewTest, IsDrawnAtOnceWhenItsTitleIsPutIn) {
  show();
  ASSERT_TRUE(QTest::qWaitFor([&] { return tile.paints > 0; }, kPaintWaitMilliseconds));
  const int before = tile.paints;
  tile.setVolString();
  EXPECT_EQ(tile.paints, before + 1);
}

TEST(RedisplayClock, ForgetsAViewThatIsGone) {
  RedisplayClock clock;
  {
    QWidget view;
    clock.redisplay(&view);
    EXPECT_TRUE(clock.isRunning());
  }
  EXPECT_TRUE(QTest::qWaitFor([&] { return !clock.isRunning(); }, kPaintWaitMilliseconds));
}

}  // namespace
}  // namespace calvero::testing
