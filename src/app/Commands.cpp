// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Commands.h"

#include "app/Screen.h"

#include <QMainWindow>

namespace tally {

Commands::Commands(const Services& services, Dispatcher& dispatcher, const Panes& panes)
    : folder(services.settings, panes.notices),
      views(services, dispatcher, panes.screen, panes.menus, panes.status, panes.notices),
      voltage(services, panes.status),
      forced(services, dispatcher, panes.notices),
      printing(services, panes.screen, &panes.window),
      downloads(services, dispatcher, views, folder, panes.menus, panes.notices),
      file(services, {dispatcher, views, forced, downloads, folder, panes.menus, panes.notices, panes.status,
                      panes.namesChanged}),
      view(services, views, panes.menus, &panes.window),
      chart(services, dispatcher, views, panes.screen, panes.status, folder, printing),
      navigate(services, dispatcher, views, chart, panes.screen, panes.menus, panes.status),
      power(services, views, voltage, panes.status),
      edit(services, dispatcher, views, forced, panes.menus, &panes.window),
      paper(services, views, voltage, printing),
      exports(services, views, voltage, folder, panes.menus, &panes.window),
      instrument(services, downloads, panes.menus, panes.status, &panes.window),
      options(services, dispatcher, folder, panes.folderChoice),
      survey(services, dispatcher, folder, printing, &panes.window),
      study(services, dispatcher, views, panes.screen, panes.menus, panes.status),
      archive(services, {dispatcher, file, study, printing, panes.notices, panes.window}),
      help(services, panes.window),
      start(services, panes.screen.start()),
      language(services, panes.menus) {
    forced.saveWhole = [this](int slot) { return file.saveWhole(slot); };
    forced.changed = [this] { views.renew(); };
    file.onSaved([this](const std::string& path) { archive.saved(path); });
    downloads.onSaved([this](const std::string& path) { archive.saved(path); });
    views.renewPage = [this] { study.renew(); };
}

} // namespace tally
