#include "platform/linux/PortalSaveDialog.hpp"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QList>
#include <QStringList>
#include <QUrl>

#include <utility>

namespace kestrelfen {

namespace {

/// One way of a filter to know its files.
struct FilterRule {
    quint32 kind = 0;
    QString pattern;
};

/// A kind of files, as the portal's dialogs offer it.
struct FileFilter {
    QString name;
    QList<FilterRule> rules;
};

constexpr quint32 mediaType = 1;

QDBusArgument& operator<<(QDBusArgument& argument, const FilterRule& rule) {
    argument.beginStructure();
    argument << rule.kind << rule.pattern;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, FilterRule& rule) {
    argument.beginStructure();
    argument >> rule.kind >> rule.pattern;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const FileFilter& filter) {
    argument.beginStructure();
    argument << filter.name << filter.rules;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, FileFilter& filter) {
    argument.beginStructure();
    argument >> filter.name >> filter.rules;
    argument.endStructure();
    return argument;
}

QVariant commaSeparatedOnly() {
    qDBusRegisterMetaType<FilterRule>();
    qDBusRegisterMetaType<QList<FilterRule>>();
    qDBusRegisterMetaType<FileFilter>();
    qDBusRegisterMetaType<QList<FileFilter>>();
    return QVariant::fromValue(
        QList<FileFilter>{{QStringLiteral("CSV"), {{mediaType, QStringLiteral("text/csv")}}}});
}

/// Empty unless it is a file of this machine.
std::string chosenPath(const QVariantMap& results) {
    const QStringList addresses = results.value(QStringLiteral("uris")).toStringList();
    return addresses.isEmpty() ? std::string() : QUrl(addresses.front()).toLocalFile().toStdString();
}

} // namespace

void PortalSaveDialog::ask(const std::string& proposedName, Chosen chosen) {
    const QVariantMap options{{QStringLiteral("current_name"), QString::fromStdString(proposedName)},
                              {QStringLiteral("filters"), commaSeparatedOnly()}};
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
