#pragma once

#include "demo/business_data.h"

namespace zkp::demo {

/// Fills Reports, QRN_Main, procedures and SECUSERS. The users are chosen among the first agents, who
/// have policies in a database of any useful size.
void makeSettings(Database& database, std::span<const Agent> agents);

} // namespace zkp::demo
