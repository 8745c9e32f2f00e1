#pragma once

#include <string>

namespace libreoffice {

/// The folder with `soffice` and `soffice.bin`.
[[nodiscard]] std::string programFolder();

/// The profile folder of the suite that the user runs: what LibreOffice takes by itself.
[[nodiscard]] std::string userProfileFolder();

/// The socket that the running instance of a profile listens on for further starts ("single
/// instance" pipe).
[[nodiscard]] std::string singleInstanceSocket(const std::string& profileFolder);

/// Whether a process listens on that local socket just now. A socket file left behind by a killed
/// process does not count.
[[nodiscard]] bool socketIsListening(const std::string& path);

}  // namespace libreoffice
