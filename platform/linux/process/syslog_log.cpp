#include "platform/linux/process/syslog_log.h"

#include <syslog.h>

#include <utility>

namespace calvero {

SyslogLog::SyslogLog(NoticeReceiver onNotice) : onNotice_(std::move(onNotice)) {
  ::openlog("calvero", LOG_PID, LOG_USER);
}

void SyslogLog::line(const std::string& text) {
  ::syslog(LOG_INFO, "%s", text.c_str());
}

void SyslogLog::notice(const std::string& text) {
  ::syslog(LOG_WARNING, "%s", text.c_str());
  if (onNotice_) onNotice_(text);
}

}  // namespace calvero
