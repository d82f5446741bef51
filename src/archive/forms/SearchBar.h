// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/SearchFields.h"

#include <QWidget>

class QComboBox;
class QLineEdit;

namespace tally::archive {

// The search field with its filters. Tells every change at once.
class SearchBar : public QWidget {
    Q_OBJECT

public:
    explicit SearchBar(QWidget* parent = nullptr);
    SearchFields fields() const;
    void focusWords();

Q_SIGNALS:
    void changed();

private:
    QLineEdit* addDate(const char* name, const char* caption);

    QLineEdit* words_;
    QComboBox* unit_;
    QLineEdit* from_;
    QLineEdit* to_;
};

} // namespace tally::archive
