// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/XlsxWriter.h"

#include "core/Fault.h"
#include "core/Text1252.h"

#include <QDir>
#include <QTemporaryFile>
#include <xlsxwriter.h>

#include <algorithm>
#include <clocale>
#include <cmath>
#include <map>

namespace tally {

namespace {

constexpr double minutesPerDay = 24 * 60;
constexpr double epochDay = 25569; // of 1970-01-01, counted as spreadsheets count days
constexpr std::size_t maximumTextBytes = 32767;

#ifndef _WIN32
// The library writes numbers with the decimal sign of the locale, which the toolkit has set to the user's; a
// workbook needs the point. For this thread and as long as the object lives.
class PointAsDecimalSign {
public:
    PointAsDecimalSign() : plain_(newlocale(LC_ALL_MASK, "C", nullptr)), before_(uselocale(plain_)) {}
    ~PointAsDecimalSign() {
        uselocale(before_);
        freelocale(plain_);
    }
    PointAsDecimalSign(const PointAsDecimalSign&) = delete;
    PointAsDecimalSign& operator=(const PointAsDecimalSign&) = delete;

private:
    locale_t plain_;
    locale_t before_;
};
#endif

// A date and time as the number that stands in its cell.
double dayNumber(ReadingTime time) {
    return epochDay + static_cast<double>(time.minutes) / minutesPerDay;
}

// Text as a cell takes it: valid UTF-8 without characters that XML has no way to write.
std::string cellText(const std::string& text) {
    std::string clean = repairedUtf8(text.substr(0, maximumTextBytes));
    std::replace_if(
        clean.begin(), clean.end(),
        [](char c) { return static_cast<unsigned char>(c) < ' ' && c != '\t' && c != '\n'; }, ' ');
    return clean;
}

// The formats of one workbook, each made when it is first asked for.
class Formats {
public:
    explicit Formats(lxw_workbook* book) : book_(book) {}

    lxw_format* heading() {
        lxw_format* const format = of("@");
        format_set_bold(format);
        return format;
    }
    lxw_format* date() { return of("yyyy-mm-dd hh:mm"); }
    lxw_format* clock() { return of("hh:mm"); }
    lxw_format* decimals(int count) {
        return of(count <= 0 ? "0" : "0." + std::string(static_cast<std::size_t>(count), '0'));
    }

private:
    lxw_format* of(const std::string& pattern) {
        lxw_format*& format = made_[pattern];
        if (format == nullptr) {
            format = workbook_add_format(book_);
            format_set_num_format(format, pattern.c_str());
        }
        return format;
    }

    lxw_workbook* book_;
    std::map<std::string, lxw_format*> made_;
};

// Writes one cell in the form of its kind.
struct CellWriter {
    lxw_worksheet* sheet;
    Formats& formats;
    lxw_row_t row = 0;
    lxw_col_t column = 0;

    void operator()(std::monostate) const {}
    void operator()(const std::string& text) const {
        lxw_format* const format = row == 0 ? formats.heading() : nullptr;
        worksheet_write_string(sheet, row, column, cellText(text).c_str(), format);
    }
    void operator()(const NumberCell& number) const {
        if (std::isfinite(number.value))
            worksheet_write_number(sheet, row, column, number.value, formats.decimals(number.decimals));
    }
    void operator()(ReadingTime time) const {
        worksheet_write_number(sheet, row, column, dayNumber(time), formats.date());
    }
    void operator()(const ClockCell& clock) const {
        worksheet_write_number(sheet, row, column, clock.minutes / minutesPerDay, formats.clock());
    }
};

lxw_row_t rowOf(int row) {
    return static_cast<lxw_row_t>(row);
}
lxw_col_t columnOf(int column) {
    return static_cast<lxw_col_t>(column);
}

void addLine(lxw_chart* chart, const std::string& sheet, const ChartLine& line) {
    lxw_chart_series* const series = chart_add_series(chart, nullptr, nullptr);
    chart_series_set_categories(series, sheet.c_str(), rowOf(line.x.first), columnOf(line.x.column),
                                rowOf(line.x.last), columnOf(line.x.column));
    chart_series_set_values(series, sheet.c_str(), rowOf(line.y.first), columnOf(line.y.column),
                            rowOf(line.y.last), columnOf(line.y.column));
    chart_series_set_name_range(series, sheet.c_str(), 0, columnOf(line.y.column));
}

// The days of the cells, since an axis of a spreadsheet would begin where it likes to.
void setTimeAxis(lxw_chart_axis* axis, const Sheet& sheet, const CellRange& cells) {
    chart_axis_set_num_format(axis, "yyyy-mm-dd");
    const auto timeIn = [&](int row) {
        const auto& cell =
            sheet.rows.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(cells.column));
        return dayNumber(std::get<ReadingTime>(cell));
    };
    chart_axis_set_min(axis, std::floor(timeIn(cells.first)));
    chart_axis_set_max(axis, std::floor(timeIn(cells.last)) + 1);
}

void addChart(lxw_workbook* book, lxw_worksheet* to, const Sheet& sheet, const WorkbookChart& chart) {
    lxw_chart* const made = workbook_add_chart(book, LXW_CHART_SCATTER_STRAIGHT);
    for (const ChartLine& line : chart.lines)
        addLine(made, sheet.name, line);
    chart_title_set_name(made, cellText(chart.title).c_str());
    chart_axis_set_name(made->x_axis, cellText(chart.xTitle).c_str());
    chart_axis_set_name(made->y_axis, cellText(chart.yTitle).c_str());
    if (chart.xIsTime && !chart.lines.empty())
        setTimeAxis(made->x_axis, sheet, chart.lines.front().x);
    lxw_chart_options size = {};
    size.x_scale = 2;
    size.y_scale = 1.5;
    worksheet_insert_chart_opt(to, rowOf(chart.row), columnOf(chart.column), made, &size);
}

void addSheet(lxw_workbook* book, Formats& formats, const Sheet& sheet) {
    lxw_worksheet* const to = workbook_add_worksheet(book, sheet.name.c_str());
    for (std::size_t i = 0; i < sheet.widths.size(); ++i)
        worksheet_set_column(to, static_cast<lxw_col_t>(i), static_cast<lxw_col_t>(i), sheet.widths[i],
                             nullptr);
    worksheet_freeze_panes(to, 1, 0);
    CellWriter writer{to, formats};
    for (const std::vector<Cell>& row : sheet.rows) {
        writer.column = 0;
        for (const Cell& cell : row) {
            std::visit(writer, cell);
            ++writer.column;
        }
        ++writer.row;
    }
    for (const WorkbookChart& chart : sheet.charts)
        addChart(book, to, sheet, chart);
}

} // namespace

std::string xlsxBytes(const Workbook& workbook) {
#ifndef _WIN32
    const PointAsDecimalSign point;
#endif
    QTemporaryFile file(QDir::tempPath() + QStringLiteral("/tallyline-XXXXXX.xlsx"));
    if (!file.open())
        throw fault::diskFull();
    const QByteArray path = QFile::encodeName(file.fileName());
    lxw_workbook* const book = workbook_new(path.constData());
    if (book == nullptr)
        throw fault::diskFull();
    Formats formats(book);
    for (const Sheet& sheet : workbook.sheets)
        addSheet(book, formats, sheet);
    lxw_doc_properties about = {};
    // 0 would stand for the time of the machine.
    about.created = static_cast<time_t>(std::max<std::int64_t>(workbook.made.minutes * 60, 1));
    workbook_set_properties(book, &about);
    if (workbook_close(book) != LXW_NO_ERROR)
        throw fault::deviceIo();
    file.seek(0);
    const QByteArray bytes = file.readAll();
    if (bytes.isEmpty())
        throw fault::deviceIo();
    return bytes.toStdString();
}

} // namespace tally
