#include "terminal/commands/volumes_command.h"

#include <unistd.h>

#include <nlohmann/json.hpp>

#include "app/app_delegate.h"
#include "terminal/commands/command_list.h"
#include "terminal/commands/command_ports.h"
#include "terminal/json_text.h"
#include "terminal/table.h"
#include "terminal/text.h"

namespace calvero {
namespace {

std::vector<Column> columnsOfVolumes() {
  return {{"Name"},      {"Mount path"}, {"File system"}, {"Size", Align::right}, {"Free", Align::right},
          {"Read-only"}, {"Removable"}};
}

std::vector<std::string> cellsOf(const MountedVolume& volume) {
  const auto yesOrNo = [](bool yes) { return yes ? "yes" : "no"; };
  return {printable(volume.name),
          printable(volume.mountPath),
          printable(volume.formatDescription),
          AppDelegate::getFormattedStringForSize(volume.totalBytes),
          AppDelegate::getFormattedStringForSize(volume.availableBytes),
          yesOrNo(volume.readOnly),
          yesOrNo(volume.removable)};
}

}  // namespace

std::string volumesTable(const std::vector<MountedVolume>& volumes) {
  std::vector<std::vector<std::string>> rows;
  for (const MountedVolume& volume : volumes) rows.push_back(cellsOf(volume));
  return table(columnsOfVolumes(), rows);
}

std::string numberedVolumes(const std::vector<MountedVolume>& volumes) {
  std::vector<Column> columns = columnsOfVolumes();
  columns.insert(columns.begin(), {"", Align::right});
  std::vector<std::vector<std::string>> rows;
  for (const MountedVolume& volume : volumes) {
    std::vector<std::string> row{std::to_string(rows.size() + 1) + ")"};
    for (std::string& cell : cellsOf(volume)) row.push_back(std::move(cell));
    rows.push_back(std::move(row));
  }
  return table(columns, rows);
}

std::string volumesJson(const std::vector<MountedVolume>& volumes) {
  auto list = nlohmann::ordered_json::array();
  for (const MountedVolume& volume : volumes) {
    list.push_back({{"name", volume.name},
                    {"mountPath", volume.mountPath},
                    {"fileSystem", volume.formatDescription},
                    {"sizeBytes", volume.totalBytes},
                    {"freeBytes", volume.availableBytes},
                    {"readOnly", volume.readOnly},
                    {"removable", volume.removable}});
  }
  return jsonText(list);
}

ExitCode volumesCommand(const ListRequest& request) {
  CommandPorts ports(Output::nowhere(), Answering::defaultButtons);
  const AppDelegate app(ports.ports());
  const auto volumes = offeredVolumes(app);
  const Output output(STDOUT_FILENO);
  if (request.json) {
    output.line(volumesJson(volumes));
  } else if (volumes.empty()) {
    output.line("No volume that can be wiped is mounted.");
  } else {
    output.write(volumesTable(volumes));
  }
  return ExitCode::finished;
}

}  // namespace calvero
