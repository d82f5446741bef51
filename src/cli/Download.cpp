// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Commands.h"
#include "cli/Endings.h"
#include "cli/InstrumentLink.h"
#include "link/DownloadSession.h"

#include <QDir>

namespace tally::cli {

namespace {

struct DownloadOptions {
    std::shared_ptr<LinkOptions> link;
    std::shared_ptr<double> wait;
    std::shared_ptr<HeaderOptions> header;
    std::string output;
    bool yes = false;
    bool no = false;
};

int download(Context& context, const DownloadOptions& options) {
    InstrumentLink link(context, *options.link,
                        options.header->answers(options.yes ? Answer::Yes : Answer::No));
    checkOutput(options.output);
    Session session(link.services(), link.panel);
    DownloadSession download(session, waitFor(*options.wait));
    if (const auto ready = download.prepare(context.files(), QDir::currentPath().toStdString()); !ready)
        return link.refused(ready.error());
    return link.keep(download.DownLoadProc(), options.output);
}

} // namespace

void addDownload(CLI::App& program, Context& shared) {
    auto options = std::make_shared<DownloadOptions>();
    CLI::App& command =
        addCommand(program, shared, "download", "receive the recording of an instrument into a data file",
                   [options](Context& context) { return download(context, *options); });
    options->link = addLink(command);
    options->wait = addWait(command);
    command.add_option("-o,--output", options->output, "the data file to write")->check(whyEmpty)->required();
    options->header = addHeaderOptions(command);
    CLI::Option* yes = command.add_flag("--yes", options->yes, "keep a download with errors");
    command.add_flag("--no", options->no, "drop a download with errors (as without it)")->excludes(yes);
}

} // namespace tally::cli
