#include "window/qt_event_loop.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QObject>
#include <QTimer>
#include <QTimerEvent>
#include <algorithm>
#include <limits>
#include <utility>

#include "window/event_dispatch.h"

namespace calvero {
namespace {

constexpr int kSuccess = 0;

/// Qt counts milliseconds in an int.
int qtInterval(std::chrono::milliseconds interval) {
  constexpr std::chrono::milliseconds::rep kLongest = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp<std::chrono::milliseconds::rep>(interval.count(), 0, kLongest));
}

}  // namespace

class QtEventLoop::Receiver : public QObject {
 public:
  explicit Receiver(QtEventLoop& loop) : loop_(loop) {}

  static QEvent::Type taskType() {
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
  }
  static QEvent::Type endType() {
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
  }

  bool event(QEvent* event) override {
    if (event->type() == taskType()) {
      loop_.runOldestTask();
    } else if (event->type() == endType()) {
      QCoreApplication::exit(kSuccess);
    } else {
      return QObject::event(event);
    }
    return true;
  }

 protected:
  void timerEvent(QTimerEvent* event) override { loop_.fire(event->timerId()); }

 private:
  QtEventLoop& loop_;
};

QtEventLoop::QtEventLoop(EventDispatch& dispatch)
    : dispatch_(dispatch), thread_(std::this_thread::get_id()), receiver_(std::make_unique<Receiver>(*this)) {}

QtEventLoop::~QtEventLoop() {
  dropTasks();
}

void QtEventLoop::post(std::function<void()> task) {
  const std::scoped_lock lock(mutex_);
  if (isEnding_) return;  // the caller's argument is destroyed after the lock is given back
  tasks_.push_back(std::move(task));
  wakeUp();
}

/// One wake-up for the oldest task only: Qt delivers all events that wait for a thread in one go, and what is posted
/// meanwhile in the next. Under the mutex.
void QtEventLoop::wakeUp() {
  if (isWakeUpPosted_ || tasks_.empty()) return;
  isWakeUpPosted_ = true;
  QCoreApplication::postEvent(receiver_.get(), new QEvent(Receiver::taskType()));
}

void QtEventLoop::runOldestTask() {
  std::function<void()> task;
  {
    const std::scoped_lock lock(mutex_);
    isWakeUpPosted_ = false;
    if (isEnding_ || tasks_.empty()) return;
    task = std::move(tasks_.front());
    tasks_.pop_front();
    wakeUp();  // first, since the task may serve further events itself
  }
  dispatch_.run(task);
  askWait();
}

bool QtEventLoop::isEventLoopThread() const {
  return std::this_thread::get_id() == thread_;
}

TimerId QtEventLoop::startTimer(std::chrono::milliseconds interval, TimerKind kind, std::function<void()> action) {
  const TimerId id = ++lastTimer_;
  const int qtTimer = receiver_->startTimer(qtInterval(interval), Qt::PreciseTimer);
  timers_[qtTimer] = {id, kind, std::make_shared<const std::function<void()>>(std::move(action))};
  return id;
}

void QtEventLoop::stopTimer(TimerId timer) {
  const auto found =
      std::find_if(timers_.begin(), timers_.end(), [timer](const auto& entry) { return entry.second.id == timer; });
  if (found == timers_.end()) return;
  receiver_->killTimer(found->first);
  timers_.erase(found);
}

void QtEventLoop::fire(int qtTimer) {
  const auto found = timers_.find(qtTimer);
  if (found == timers_.end() || isEnding_) return;
  const auto action = found->second.action;  // lives on if it stops its own timer
  if (found->second.kind == TimerKind::oneShot) stopTimer(found->second.id);
  dispatch_.run(*action);
  askWait();
}

bool QtEventLoop::serveUntil(const std::function<bool()>& done, std::chrono::milliseconds limit) {
  bool isDone = done();
  if (isDone || isEnding_ || limit <= std::chrono::milliseconds::zero()) return isDone;
  QEventLoop nested;
  const std::function<void()> ask = [&] {
    isDone = done();
    if (isDone) nested.quit();
  };
  const auto* const outerWait = std::exchange(innermostWait_, &ask);
  // Emitted whenever the events that were due have been served: input of the user ends a wait, too.
  QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &nested,
                   [this] { askWait(); });
  QTimer limitTimer;
  limitTimer.setSingleShot(true);
  limitTimer.setTimerType(Qt::PreciseTimer);
  limitTimer.callOnTimeout(&nested, &QEventLoop::quit);
  limitTimer.start(qtInterval(limit));
  nested.exec();
  innermostWait_ = outerWait;
  return isDone || done();
}

void QtEventLoop::askWait() const {
  if (innermostWait_ != nullptr) dispatch_.run(*innermostWait_);
}

void QtEventLoop::terminate() {
  const std::scoped_lock lock(mutex_);
  isEnding_ = true;
  if (isEventLoopThread()) {
    QCoreApplication::exit(kSuccess);
  } else {
    QCoreApplication::postEvent(receiver_.get(), new QEvent(Receiver::endType()), Qt::HighEventPriority);
  }
}

int QtEventLoop::run() {
  struct Closer {
    QtEventLoop& loop;
    ~Closer() { loop.dropTasks(); }
  } closer{*this};
  return isEnding_ ? kSuccess : QCoreApplication::exec();
}

void QtEventLoop::dropTasks() {
  std::deque<std::function<void()>> dropped;
  const std::scoped_lock lock(mutex_);
  isEnding_ = true;
  dropped.swap(tasks_);
}

}  // namespace calvero
