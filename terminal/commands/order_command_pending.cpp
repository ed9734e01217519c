#include "terminal/commands/order_command_pending.h"

#include <unistd.h>

#include "methods/method_catalogue.h"
#include "remote/remote_order.h"
#include "terminal/commands/command_ports.h"
#include "terminal/output.h"

namespace calvero {

bool PendingOrder::isPending() const {
  return online == "1";
}

PendingOrder readPendingOrder(OrderTags& tags) {
  return {.online = tags.value(kTagOnline),
          .volume = tags.value(kTagDrive),
          .method = tags.value(kTagAlgo),
          .status = tags.value(kTagStatus),
          .cancel = tags.value(kTagCancel),
          .result = tags.value(kTagResult),
          .named = tags.value(kTagNamed),
          .mountPath = tags.value(kTagMountPath),
          .volumeUuid = tags.value(kTagVolumeUuid)};
}

Answer changeOrder(OrderTags& tags, const std::function<OrderChange(const PendingOrder& order)>& decide) {
  while (true) {
    const PendingOrder seen = readPendingOrder(tags);
    const OrderChange change = decide(seen);
    if (change.tags.empty() || tags.store(change.tags, {{kTagOnline, seen.online},
                                                        {kTagDrive, seen.volume},
                                                        {kTagAlgo, seen.method},
                                                        {kTagStatus, seen.status},
                                                        {kTagCancel, seen.cancel},
                                                        {kTagNamed, seen.named},
                                                        {kTagMountPath, seen.mountPath},
                                                        {kTagVolumeUuid, seen.volumeUuid}})) {
      return change.answer;
    }
  }
}

std::int32_t orderedMethod(const PendingOrder& order) {
  constexpr std::int32_t kDefaultMethod = 0;
  return methodFromTag(order.method).value_or(kDefaultMethod);
}

std::string numberAndWord(std::int32_t method) {
  const EraseMethod& entry = methodAt(kMethodCatalogue, method);
  return "method " + std::to_string(entry.number + 1) + " (" + entry.word + ")";
}

ExitCode give(const Answer& answer) {
  if (answer.exitCode == ExitCode::finished) {
    Output(STDOUT_FILENO).line(answer.line);
  } else {
    printError(answer.line);
  }
  return answer.exitCode;
}

}  // namespace calvero
