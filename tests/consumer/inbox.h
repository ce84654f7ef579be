#pragma once

#include <string>
#include <string_view>

/// The title of a push payload.
std::string inboxTitle(std::string_view payload);
