#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <vector>

namespace calvero {

/// Lets views that ask for redisplay after every paint be painted again and again, all of them at one steady rate. A
/// view that is not on the screen is not painted, so it does not ask again: without views on the screen the clock
/// stands still. GUI thread.
class RedisplayClock {
 public:
  /// Never more often than the display shows anything; low enough that a page of tiles costs next to nothing.
  static constexpr int kMostPerSecond = 4;

  RedisplayClock();

  /// `view` is painted once more at the next tick, if it is on the screen then.
  void redisplay(QWidget* view);
  [[nodiscard]] bool isRunning() const { return timer_.isActive(); }

 private:
  void tick();

  QTimer timer_;
  std::vector<QPointer<QWidget>> due_;
};

}  // namespace calvero
