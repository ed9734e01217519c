#include "platform/suite/claimed_tags.h"

namespace calvero {

namespace {

constexpr const char* kPending = "1";
/// A command that looks at the order or changes it holds the claim for a moment.
constexpr std::chrono::seconds kClaimTimeout{1};

}  // namespace

bool ClaimedTags::isOursToCarryOut() {
  const OrderClaim::Holder holder = claim_.take(kClaimTimeout);
  if (holder == OrderClaim::Holder::another) log_.line("the order is under way in another process; this one ends");
  if (holder == OrderClaim::Holder::nobody) log_.line("the order cannot be claimed: a second start would not see it");
  carriesOut_ = holder != OrderClaim::Holder::another;
  return carriesOut_;
}

void ClaimedTags::giveUp() {
  carriesOut_ = false;
  claim_.giveUp();
}

std::optional<std::string> ClaimedTags::value(const std::string& tag) {
  return tag == onlineTag_ && !carriesOut_ ? pendingOrder() : store_.value(tag);
}

/// For a process that a person has started. It gives the claim up again with the order.
std::optional<std::string> ClaimedTags::pendingOrder() {
  auto online = store_.value(onlineTag_);
  if (online == kPending) {
    if (claim_.take(kClaimTimeout) != OrderClaim::Holder::us) {
      log_.line("an order is pending that is another process's; this one leaves it alone");
      return std::nullopt;
    }
    online = store_.value(onlineTag_);  // it may have been called off before it was claimed
  }
  if (online != kPending) claim_.giveUp();
  return online;
}

}  // namespace calvero
