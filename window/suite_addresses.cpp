#include "window/suite_addresses.h"

#include <QSettings>
#include <QStringList>

#include "ports/workspace.h"

namespace calvero {
namespace {

std::string textOf(const QSettings& file, const QString& key) {
  return file.value(key).toStringList().join(',').toStdString();  // a comma would make a list of it
}

}  // namespace

SuiteAddresses::SuiteAddresses(Workspace& workspace, const std::string& file) : workspace_(workspace) {
  QSettings addresses(QString::fromStdString(file), QSettings::IniFormat);
  portalLogin_ = textOf(addresses, "portal/login");
  addresses.beginGroup("pages");
  for (const QString& index : addresses.childKeys()) pages_[index.toStdString()] = textOf(addresses, index);
}

void SuiteAddresses::openPage(std::int32_t index) {
  const auto page = pages_.find(std::to_string(index));
  if (page != pages_.end()) workspace_.openAddress(page->second);
}

}  // namespace calvero
