#pragma once

#include <functional>
#include <string>

#include "ports/system_log.h"

namespace calvero {

class SyslogLog : public SystemLog {
 public:
  /// Gets every notice too, on the thread that gives it. May be empty.
  using NoticeReceiver = std::function<void(const std::string&)>;

  explicit SyslogLog(NoticeReceiver onNotice = {});

  void line(const std::string& text) override;
  void notice(const std::string& text) override;

 private:
  const NoticeReceiver onNotice_;
};

}  // namespace calvero
