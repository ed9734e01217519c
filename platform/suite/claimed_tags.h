#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "platform/suite/order_claim.h"
#include "ports/system_log.h"
#include "ports/tag_store.h"

namespace calvero {

/// The tags as one process of several may see them: whoever reads that an order is pending holds the claim to it, so
/// that no two processes carry it out, and none writes into a store that has been cleared meanwhile. To all others no
/// order is pending; every other tag reads as it is.
class ClaimedTags : public TagStore {
 public:
  /// `onlineTag` reads "1" while an order is pending. All must outlive this object.
  ClaimedTags(TagStore& store, OrderClaim& claim, std::string onlineTag, SystemLog& log)
      : store_(store), claim_(claim), onlineTag_(std::move(onlineTag)), log_(log) {}

  /// For the process that was started for the order that is pending now. False when another carries it out. Where
  /// nobody can tell, this one does. Before `value`.
  bool isOursToCarryOut();
  /// Ends that, and the claim: the process turns out to be a person's.
  void giveUp();

  /// The online tag on the event loop thread, every other one on any.
  std::optional<std::string> value(const std::string& tag) override;
  void setValue(const std::string& tag, const std::string& value) override { store_.setValue(tag, value); }

 private:
  std::optional<std::string> pendingOrder();

  TagStore& store_;
  OrderClaim& claim_;
  const std::string onlineTag_;
  SystemLog& log_;
  bool carriesOut_ = false;
};

}  // namespace calvero
