#pragma once

#include <string>
#include <vector>

namespace zandrell {

// The families of all scalable fonts of the system, sorted. Requires: a QGuiApplication.
std::vector<std::string> FontNames();

}  // namespace zandrell
