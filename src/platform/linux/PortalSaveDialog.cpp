#include "platform/linux/PortalSaveDialog.hpp"

#include <QStringList>
#include <QUrl>

#include <utility>

namespace kestrelfen {

namespace {

/// Empty unless it is a file of this machine.
std::string chosenPath(const QVariantMap& results) {
    const QStringList addresses = results.value(QStringLiteral("uris")).toStringList();
    return addresses.isEmpty() ? std::string() : QUrl(addresses.front()).toLocalFile().toStdString();
}

} // namespace

void PortalSaveDialog::ask(const std::string& proposedName, Chosen chosen) {
    const QVariantMap options{{QStringLiteral("current_name"), QString::fromStdString(proposedName)}};
    requests_.ask({"org.freedesktop.portal.FileChooser", "SaveFile"},
                  {QString(), QStringLiteral("Export History")}, options,
                  [this, proposedName, chosen = std::move(chosen)](const PortalRequests::Answer& answer) {
                      if (answer.outcome == PortalRequests::Answer::Outcome::failed) {
                          otherwise_.ask(proposedName, chosen);
                      } else if (const std::string path = chosenPath(answer.results); !path.empty()) {
                          chosen(path);
                      }
                  });
}

} // namespace kestrelfen
