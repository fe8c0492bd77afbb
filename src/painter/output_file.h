#pragma once

#include <QByteArray>
#include <string>

namespace zandrell {

// Puts a made document where the user asked for it. A plain file, also one behind a link, is
// replaced as a whole or stays as it is; a pipe or a device is written into. On failure `error`
// gets path and reason.
bool WriteOutput(const QByteArray& bytes, const std::string& path, std::string& error);

}  // namespace zandrell
