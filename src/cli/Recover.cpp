// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/Recover.h"
#include "cli/Commands.h"
#include "cli/InstrumentLink.h"
#include "platform/Folders.h"

namespace tally::cli {

namespace {

struct RecoverOptions {
    std::shared_ptr<LinkOptions> link;
    std::string output;
};

int recover(Context& context, const RecoverOptions& options) {
    InstrumentLink link(context, *options.link);
    RecoverSession session(link.session);
    if (!session.mnuItemRecover_Click())
        return link.refused();
    return link.keep(session.RecoverProc(context.files(), folders::recoverFile()), options.output);
}

} // namespace

void addRecover(CLI::App& program, Context& shared) {
    auto options = std::make_shared<RecoverOptions>();
    CLI::App& command =
        addCommand(program, shared, "recover", "recover the recording of an instrument whose battery failed",
                   [options](Context& context) { return recover(context, *options); });
    options->link = addLink(command);
    command.add_option("-o,--output", options->output, "the data file to write")->required();
}

} // namespace tally::cli
