#include <gtest/gtest.h>

#include <QDir>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <QtTest/QTest>
#include <set>

#include "tests/gallery/scenes.h"
#include "tests/gallery/text_fit.h"
#include "window/elided_label.h"
#include "window/label_button.h"
#include "window/wrapped_label.h"

namespace calvero {
namespace {

using testing::misfits;
using testing::ShownScreen;

constexpr QSize kSmallScreen(1024, 700);
constexpr std::size_t kLanguages = 15;
constexpr std::size_t kFewestScreens = 25;

std::vector<std::string> languages() {
  std::vector<std::string> found;
  for (const QString& file : QDir(":/i18n").entryList({"calvero_*.qm"})) {
    found.push_back(file.mid(8).chopped(3).toStdString());
  }
  return found;
}

/// What a reader could not read at the window's smallest size, and the screens that there were.
struct Reading {
  QStringList faults;
  std::set<std::string> screens;
};

void read(const ShownScreen& screen, Reading& reading) {
  screen.window->resize(1, 1);
  QCoreApplication::processEvents();
  QStringList faults = misfits(*screen.shown);
  const QSize size = screen.shown->size();
  const bool isOnScreen = size.width() <= kSmallScreen.width() && size.height() <= kSmallScreen.height();
  if (!isOnScreen) faults += QStringLiteral("is %1 wide and %2 high").arg(size.width()).arg(size.height());
  for (const QString& fault : faults) reading.faults += QString::fromStdString(screen.name) + ": " + fault;
  reading.screens.insert(screen.name);
}

class TextsFit : public ::testing::TestWithParam<std::string> {
 protected:
  void TearDown() override {
    QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
    QLocale::setDefault(QLocale::system());
  }
};

TEST_P(TextsFit, OnEveryPageAndInEveryMessageAtTheSmallestSize) {
  Reading reading;
  testing::playAllScenes(GetParam(), [&](const ShownScreen& screen) { read(screen, reading); });
  EXPECT_EQ(reading.faults.join('\n').toStdString(), "");
  EXPECT_GE(reading.screens.size(), kFewestScreens);
}

INSTANTIATE_TEST_SUITE_P(In, TextsFit, ::testing::ValuesIn(languages()),
                         [](const auto& language) { return language.param; });

TEST(Languages, AreAllLookedAt) {
  EXPECT_EQ(languages().size(), kLanguages);
}

/// A window with one widget in a layout of its own making.
template <typename Widget>
class OneWidget {
 public:
  explicit OneWidget(const QString& text) : widget_(new Widget(&window_)) {
    widget_->setObjectName("text");
    widget_->setText(text);
    window_.resize(400, 300);
    window_.show();
  }

  QStringList at(const QRect& place) {
    widget_->setGeometry(place);
    return misfits(window_);
  }
  Widget& widget() { return *widget_; }

 private:
  QWidget window_;
  Widget* widget_;
};

TEST(Misfits, FindALabelThatIsTooNarrowForItsLine) {
  OneWidget<QLabel> label("Nobody can read all of this");
  EXPECT_TRUE(label.at({0, 0, 390, 30}).isEmpty());
  EXPECT_EQ(label.at({0, 0, 40, 30}).size(), 1);
}

TEST(Misfits, FindALabelThatIsTooLowForItsLine) {
  OneWidget<QLabel> label("Nobody can read all of this");
  EXPECT_EQ(label.at({0, 0, 390, 8}).size(), 1);
}

TEST(Misfits, FindAWrappedTextWithoutRoomForItsLines) {
  OneWidget<WrappedLabel> label("Nobody can read all of this once it needs several lines");
  EXPECT_TRUE(label.at({0, 0, 390, 30}).isEmpty());
  EXPECT_TRUE(label.at({0, 0, 100, 290}).isEmpty());
  EXPECT_EQ(label.at({0, 0, 100, 30}).size(), 1);
}

TEST(Misfits, FindAPlainWrappedLabelWithAWordThatIsWiderThanTheLabel) {
  OneWidget<QLabel> label("Geschwindigkeitsbegrenzungen");
  label.widget().setWordWrap(true);
  EXPECT_TRUE(label.at({0, 0, 390, 30}).isEmpty());
  EXPECT_EQ(label.at({0, 0, 60, 290}).size(), 1);
}

TEST(Misfits, FindAButtonThatIsTooNarrowForItsTitle) {
  OneWidget<QPushButton> button("Erase && leave");
  EXPECT_TRUE(button.at({0, 0, 200, 40}).isEmpty());
  EXPECT_EQ(button.at({0, 0, 50, 40}).size(), 1);
}

TEST(Misfits, FindALabelButtonWithoutRoomForItsLines) {
  OneWidget<LabelButton> button("A method with a name of many words");
  EXPECT_TRUE(button.at({0, 0, 390, 40}).isEmpty());
  EXPECT_EQ(button.at({0, 0, 80, 30}).size(), 1);
}

TEST(Misfits, FindAShortenedTextUnlessItIsTheNameOfAVolume) {
  OneWidget<ElidedLabel> label("Nobody can read all of this");
  EXPECT_TRUE(label.at({0, 0, 390, 30}).isEmpty());
  EXPECT_EQ(label.at({0, 0, 40, 30}).size(), 1);
  label.widget().setObjectName("tfDriveName");
  EXPECT_TRUE(label.at({0, 0, 40, 30}).isEmpty());
}

TEST(Misfits, FindWhatReachesOutOfItsWindow) {
  OneWidget<QLabel> label("Far out");
  EXPECT_EQ(label.at({350, 0, 100, 30}).size(), 1);
  EXPECT_EQ(label.at({0, 290, 100, 30}).size(), 1);
}

TEST(Misfits, FindNeighboursThatCoverEachOther) {
  OneWidget<QLabel> below("Below");
  QWidget* window = below.widget().window();
  auto* above = new QLabel("Above", window);
  above->setGeometry(0, 20, 100, 30);
  above->show();
  EXPECT_TRUE(below.at({0, 100, 100, 30}).isEmpty());
  EXPECT_EQ(below.at({0, 0, 100, 30}).size(), 1);
}

TEST(Misfits, LetAScrolledWidgetBeHigherThanItsAreaButNotWider) {
  QScrollArea area;
  auto* content = new QWidget;
  area.setWidget(content);
  area.resize(200, 200);
  area.show();
  content->resize(150, 900);
  EXPECT_TRUE(misfits(area).isEmpty());
  content->resize(300, 150);
  EXPECT_EQ(misfits(area).size(), 1);
}

TEST(Misfits, PassOverWhatIsHidden) {
  OneWidget<QLabel> label("Nobody can read all of this");
  label.widget().hide();
  EXPECT_TRUE(label.at({0, 0, 40, 30}).isEmpty());
}

}  // namespace
}  // namespace calvero
