// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/Recover.h"
#include "cli/Commands.h"
#include "cli/Endings.h"
#include "cli/InstrumentLink.h"
#include "platform/Folders.h"

namespace tally::cli {

namespace {

struct RecoverOptions {
    std::shared_ptr<LinkOptions> link;
    std::shared_ptr<double> wait;
    std::string output;
};

int recover(Context& context, const RecoverOptions& options) {
    InstrumentLink link(context, *options.link);
    checkOutput(options.output);
    Session session(link.services(), link.panel);
    RecoverSession recover(session, waitFor(*options.wait));
    if (const auto ready = recover.prepare(); !ready)
        return link.refused(ready.error());
    return link.keep(recover.RecoverProc(context.files(), folders::recoverFile()), options.output);
}

} // namespace

void addRecover(CLI::App& program, Context& shared) {
    auto options = std::make_shared<RecoverOptions>();
    CLI::App& command =
        addCommand(program, shared, "recover", "recover the recording of an instrument whose battery failed",
                   [options](Context& context) { return recover(context, *options); });
    options->link = addLink(command);
    options->wait = addWait(command);
    command.add_option("-o,--output", options->output, "the data file to write")->check(whyEmpty)->required();
}

} // namespace tally::cli
