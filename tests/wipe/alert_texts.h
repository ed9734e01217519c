#pragma once

namespace calvero {

/// The journal's entry for the alert that ends the application.
constexpr const char* kUnknownErrorAlert =
    "alert \"Information\" \"Unknown Error Occured\" \"Relaunch the application\" \"\"";

/// The journal's entry for the alert that ends a person's cancel.
constexpr const char* kAbortedAlert = "alert \"Information\" \"Wiping process aborted\" \"OK\" \"\"";

}  // namespace calvero
