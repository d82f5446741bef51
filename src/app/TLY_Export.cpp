// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Export.h"

#include "app/DefaultFolder.h"
#include "app/Menus.h"
#include "app/Views.h"
#include "app/VoltageQuestion.h"
#include "app/forms/ExportForm.h"
#include "export/CsvData.h"
#include "export/Export.h"
#include "export/TableCsv.h"
#include "export/TableWorkbook.h"
#include "export/expmv90.h"
#include "platform/XlsxWriter.h"

#include <filesystem>

namespace tally {

namespace {

bool isTable(View view) {
    return view == View::table || view == View::powerTable;
}

std::string rangeText(const char* what, const TimeAxis& axis) {
    return what + std::to_string(axis.points) + (axis.points == 1 ? " reading, " : " readings, ") +
           screenTime(axis.start) + " to " + screenTime(axis.timeOf(axis.points - 1));
}

// What is shown of all that can be written; empty for everything and for nothing.
std::string shownText(const Recordings& recordings, const Display& display, const TimeAxis& all) {
    const auto shown = timeAxis(recordings, display.displayed(recordings));
    const bool part = shown && (shown->start != all.start || shown->points != all.points);
    return part ? rangeText("What is shown: ", *shown) : std::string();
}

std::string nameFor(const Recordings& recordings, bool workbook) {
    return std::filesystem::path(recordings.info(0).path).stem().string() + (workbook ? ".xlsx" : ".csv");
}

} // namespace

// With the data plot shown the CSV export, with a table shown the table as text.
Done TLY_Export::MnuItemexpdatacsv_Click() {
    const View view = services_.display.exportable();
    if (view == View::dataPlot)
        return exportCsv();
    return isTable(view) ? exportTable(false) : Done();
}

Done TLY_Export::mnuItemexpdata1perLine_Click() {
    return isTable(services_.display.exportable()) ? exportTable(true) : Done();
}

Done TLY_Export::exportCsv() {
    Recordings& recordings = services_.recordings;
    SelectFile(recordings, services_.chooser, pending::csvExport);
    const int slot = recordings.ginx;
    if (slot == Recordings::cancelled)
        return {};
    const auto part = services_.display.part(recordings, slot);
    if (!part)
        return tl::make_unexpected(part.error());
    const auto done = CsvData(recordings, slot, *part, {services_.files, folder_.stored()});
    if (!done)
        return tl::make_unexpected(done.error());
    services_.prompt.tell(done->message());
    return {};
}

Done TLY_Export::exportTable(bool onePerLine) {
    const Display& display = services_.display;
    services_.recordings.ginx = display.shownSlot();
    const auto done =
        Export(services_.recordings, display.shownSlot(), display.table(), onePerLine, services_.files);
    if (!done)
        return tl::make_unexpected(done.error());
    exported(*done);
    return {};
}

Done TLY_Export::mnuItemExportReadings_Click() {
    const Recordings& recordings = services_.recordings;
    if (!recordings.isOpen(0))
        return refuse(std::string(noFileToExport));
    const auto table = readingTable(recordings);
    if (!table)
        return tl::make_unexpected(table.error());
    std::vector<std::string> columns;
    for (const TableColumn& column : table->columns)
        columns.push_back(column.name);
    ExportForm form(rangeText("Everything: ", table->axis),
                    shownText(recordings, services_.display, table->axis), columns, window_);
    return form.exec() == QDialog::Accepted ? writeReadings(form.choice()) : Done();
}

Done TLY_Export::writeReadings(const ExportChoice& choice) {
    const Recordings& recordings = services_.recordings;
    auto table = readingTable(recordings, choice.part ? std::optional(services_.display.displayed(recordings))
                                                      : std::nullopt);
    if (!table)
        return tl::make_unexpected(table.error());
    std::vector<TableColumn> columns;
    for (const std::size_t column : choice.columns)
        columns.push_back(table->columns[column]);
    table->columns = std::move(columns);
    const auto path = services_.prompt.chooseFile(
        {.save = true,
         .filter = choice.workbook ? "Workbook (*.xlsx)|*.xlsx" : "Text (*.csv)|*.csv",
         .folder = folder_.forDialog(),
         .name = nameFor(recordings, choice.workbook)});
    if (!path)
        return {};
    if (const auto free = checkNotOpen(recordings, *path, services_.files); !free)
        return free;
    const CsvForm form{choice.separator, choice.decimal, choice.shownTime ? TimeForm::shown : TimeForm::iso};
    const std::string bytes = choice.workbook
                                  ? xlsxBytes(tableWorkbook(recordings, *table, services_.clock.localTime()))
                                  : tableCsv(recordings, *table, form);
    services_.prompt.tell(writeExport(services_.files, *path, bytes, " saved OK").message());
    return {};
}

Done TLY_Export::mnuitemexprep_Click() {
    const Recordings& recordings = services_.recordings;
    if (!recordings.isOpen(0))
        return refuse(std::string(noFileToExport));
    const auto files = views_.files();
    if (!files)
        return tl::make_unexpected(files.error());
    const auto plan = planMetering(files->recordings(), files->range(), services_.display.powerFactor(),
                                   {services_.files, folder_.stored()});
    if (!plan)
        return tl::make_unexpected(plan.error());
    const bool known = services_.display.powerKnown();
    if (!voltage_.ensureKnown())
        return {};
    // A summary that is shown has an energy line from now on.
    if (!known)
        views_.renewPower();
    const auto power = views_.power(*files);
    if (!power)
        return tl::make_unexpected(power.error());
    const auto answer =
        services_.prompt.input(recorderQuestion(services_.display.powerFactor(), recorderId_));
    if (!answer)
        return {};
    const auto done = expmv90(*plan, *power, *answer, services_.files);
    if (!done)
        return tl::make_unexpected(done.error());
    recorderId_ = keptIdentifier(*answer);
    exported(*done);
    return {};
}

// A view has to be shown again before the next export.
void TLY_Export::exported(const Exported& done) {
    services_.display.exported();
    services_.prompt.tell(done.message());
    menus_.apply(MenuEvent::textShown);
}

} // namespace tally
