#include "window/redisplay_clock.h"

#include <QScreen>
#include <algorithm>
#include <utility>

namespace calvero {
namespace {

int intervalOn(const QScreen* screen) {
  constexpr double kMillisecondsPerSecond = 1000.0;
  double perSecond = RedisplayClock::kMostPerSecond;
  if (screen != nullptr && screen->refreshRate() >= 1.0) perSecond = std::min(perSecond, screen->refreshRate());
  return static_cast<int>(kMillisecondsPerSecond / perSecond);
}

}  // namespace

RedisplayClock::RedisplayClock() {
  timer_.setSingleShot(true);
  timer_.setTimerType(Qt::CoarseTimer);
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { tick(); });
}

void RedisplayClock::redisplay(QWidget* view) {
  if (std::find(due_.begin(), due_.end(), view) == due_.end()) due_.emplace_back(view);
  if (!timer_.isActive()) timer_.start(intervalOn(view->screen()));
}

void RedisplayClock::tick() {
  for (const QPointer<QWidget>& view : std::exchange(due_, {})) {
    if (view != nullptr && view->isVisible() && !view->window()->isMinimized()) view->update();
  }
}

}  // namespace calvero
