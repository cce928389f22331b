#include "core/centre/BetaBuild.h"

#include <string>

namespace vitrelle {

namespace {

struct BetaFlag {
  bool isBeta = false;
};

} // namespace

bool isBetaBuild(const Platform& platform) {
  return platform.shared
      .get<BetaFlag>([&platform] {
        const std::string receipt = platform.bundle.appStoreReceiptURL().value_or("");
        return new BetaFlag{receipt.substr(receipt.rfind('/') + 1) == "sandboxReceipt"};
      })
      ->isBeta;
}

} // namespace vitrelle
