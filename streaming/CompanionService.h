#pragma once
// The product's own streaming service, as one configuration value: its
// domain fragment names the platform "Zor" in a stream URL, marks the URLs
// the companion app may replace in the "Current" event, and is the host the
// live-session calls and the Bluetooth push go to.
#include <QString>

namespace CompanionService {

// Built in; matches no other platform's fragment.
inline constexpr const char kDefaultDomain[] = "zorvane.com";

// CS_COMPANION_DOMAIN when set to a usable host fragment, else the default.
// Read on every call so a test can switch it. Never empty: an empty
// fragment would occur in every URL.
QString companionDomain();

// "https://" + companionDomain(): the base of "/api/Live/...".
QString companionHost();

} // namespace CompanionService
