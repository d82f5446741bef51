// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/HeaderScan.h"

#include "core/Header.h"
#include "core/ModeTable.h"

namespace tally {

char HeaderScan::feed(char c) {
    ++count_;
    if (!started_) {
        if (!isFamilyInitial(c))
            return c;
        started_ = true;
        startIndex_ = count_ - 1;
        lowBattery_ = upperCase(c) != c;
        line_ = upperCase(c);
        return upperCase(c);
    }
    if (c == '\r')
        lineComplete_ = true;
    if (!lineComplete_ && line_.size() < longest)
        line_ += c;
    return c;
}

HeaderScan::Token HeaderScan::token() const {
    if (line_.size() < 3 && !lineComplete_)
        return Token::pending;
    const bool valid =
        line_.size() >= 3 && line_[0] == 'K' && upperCase(line_[1]) == 'W' && upperCase(line_[2]) == 'T';
    return valid ? Token::valid : Token::wrong;
}

} // namespace tally
