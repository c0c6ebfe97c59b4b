#include "platform/linux/WebOrigin.hpp"

#include <QString>

#include <algorithm>
#include <array>

namespace kestrelfen {

namespace {

constexpr std::array<QStringView, 2> webSchemes{u"http://", u"https://"};
constexpr QStringView ends = u"/?#\\";

} // namespace

std::string webOrigin(QStringView address) {
    for (const QStringView scheme : webSchemes) {
        if (!address.startsWith(scheme, Qt::CaseInsensitive)) {
            continue;
        }
        QStringView host = address.mid(scheme.size());
        const auto* const end =
            std::find_if(host.begin(), host.end(), [](QChar c) { return ends.contains(c); });
        host = host.left(end - host.begin());
        host = host.mid(host.lastIndexOf(u'@') + 1);
        return host.isEmpty() ? std::string() : (scheme.toString() + host.toString()).toStdString();
    }
    return {};
}

} // namespace kestrelfen
