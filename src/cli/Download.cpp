// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Commands.h"
#include "cli/InstrumentLink.h"
#include "link/DownloadSession.h"

#include <QDir>

namespace tally::cli {

namespace {

struct DownloadOptions {
    std::shared_ptr<LinkOptions> link;
    std::shared_ptr<double> wait;
    std::string output;
    std::string initialized;
    bool yes = false;
    bool no = false;
};

int download(Context& context, const DownloadOptions& options) {
    if (!options.initialized.empty() && !parseHeaderTime(options.initialized))
        throw WrongUsage("--initialized: '" + options.initialized + "' is no date and time");
    InstrumentLink link(context, *options.link, options.yes ? Answer::Yes : Answer::No);
    link.prompt.setInitialized(options.initialized);
    DownloadSession session(link.session, waitFor(*options.wait));
    if (!session.mnuItemDownload_Click(context.files(), QDir::currentPath().toStdString()))
        return link.refused();
    return link.keep(session.DownLoadProc(), options.output);
}

} // namespace

void addDownload(CLI::App& program, Context& shared) {
    auto options = std::make_shared<DownloadOptions>();
    CLI::App& command =
        addCommand(program, shared, "download", "receive the recording of an instrument into a data file",
                   [options](Context& context) { return download(context, *options); });
    options->link = addLink(command);
    options->wait = addWait(command);
    command.add_option("-o,--output", options->output, "the data file to write")->required();
    command.add_option("--initialized", options->initialized,
                       "when the recording began, \"mm-dd-yy hh:mm\", for a header without a time");
    CLI::Option* yes = command.add_flag("--yes", options->yes, "keep a download with errors");
    command.add_flag("--no", options->no, "drop a download with errors (as without it)")->excludes(yes);
}

} // namespace tally::cli
