// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PatientFiles.h"

#include "platform/Patiently.h"

namespace tally {

void PatientFiles::write(const std::string& path, const std::string& bytes) {
    patiently([&] { files_.write(path, bytes); });
}

} // namespace tally
