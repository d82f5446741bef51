// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/DefaultFolder.h"

#include "app/forms/NoticeBar.h"
#include "core/forms/Words.h"

#include <QDir>

namespace tally {

namespace {

const QString noticeKey = QStringLiteral("folder");

} // namespace

std::string DefaultFolder::stored() const {
    return settings_.get("Directory", "default");
}

std::string DefaultFolder::forDialog() {
    std::string folder = stored();
    if (folder.empty() || QDir(words(folder)).exists()) {
        notices_.remove(noticeKey);
        return folder;
    }
    notices_.put(noticeKey, QStringLiteral("The default directory %1 is not there. File dialogs start in "
                                           "the current one; choose another under Options > Default Dir.")
                                .arg(words(folder)));
    return {};
}

void DefaultFolder::choose(const std::string& folder) {
    settings_.set("Directory", "default", folder);
    notices_.remove(noticeKey);
}

} // namespace tally
