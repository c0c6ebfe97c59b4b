#include "platform/linux/BrowserWindowName.hpp"

#include <QString>

#include <algorithm>
#include <array>

namespace kestrelfen {

namespace {

struct Product {
    std::string_view bundleIdentifier;
    QStringView name;
};

constexpr std::array products{
    Product{"com.google.Chrome", u"Google Chrome"},
    Product{"com.google.Chrome", u"Chromium"},
    Product{"com.google.Chrome", u"क्रोमियम"},
    Product{"com.brave.Browser", u"Brave"},
    Product{"com.microsoft.edgemac", u"Microsoft Edge"},
    Product{"company.thebrowser.Browser", u"Arc"},
    Product{"com.vivaldi.Vivaldi", u"Vivaldi"},
    Product{"com.operasoftware.Opera", u"Opera"},
    Product{"ai.perplexity.comet", u"Comet"},
};

constexpr std::array<QStringView, 7> channels{u"Beta",     u"Dev", u"Developer", u"Canary",
                                              u"Unstable", u"GX",  u"Snapshot"};

/// Where a product tells of a private window before its name instead of behind it.
constexpr std::array<QStringView, 6> privateMarks{u"InPrivate", u"Incognito",        u"Private",
                                                  u"Guest",     u"Private Browsing", u"Private Window"};

constexpr QStringView separators = u"-–—:";
constexpr QStringView quotes = u"„“”\"";
constexpr QStringView openingBrackets = u"([（";
constexpr QStringView closingBrackets = u")]）";

/// Without the marks of direction and width that some languages and products set into it.
QString visible(QStringView name) {
    QString text;
    for (const QChar character : name) {
        if (character.category() != QChar::Other_Format && !quotes.contains(character)) {
            text += character;
        }
    }
    return text.simplified();
}

bool isSeparator(QChar character) {
    return separators.contains(character);
}

bool isPartBegunAt(QStringView text, qsizetype place) {
    return place >= 2 && text[place - 1] == u' ' && isSeparator(text[place - 2]);
}

/// What follows the last separator: a mark, a profile's name, or the end of the page's title.
QStringView lastPart(QStringView text) {
    qsizetype start = text.size();
    while (start > 0 && !isPartBegunAt(text, start)) {
        --start;
    }
    return text.mid(start);
}

bool isInBrackets(QStringView part) {
    return !part.isEmpty() && openingBrackets.contains(part.front()) && closingBrackets.contains(part.back());
}

bool isPrivateMark(QStringView part) {
    return isInBrackets(part) ||
           std::any_of(privateMarks.begin(), privateMarks.end(),
                       [part](QStringView mark) { return part.compare(mark, Qt::CaseInsensitive) == 0; });
}

QStringView withoutChannel(QStringView tail) {
    for (const QStringView channel : channels) {
        if (tail.startsWith(channel, Qt::CaseInsensitive)) {
            return tail.mid(channel.size()).trimmed();
        }
    }
    return tail;
}

/// Nothing may stand behind the product but its channel and, set off, the name of one profile. In every
/// language the mark of a private window follows the product immediately, in brackets.
bool isOrdinaryTail(QStringView tail) {
    const QStringView rest = withoutChannel(tail.trimmed());
    if (rest.isEmpty()) {
        return true;
    }
    const QStringView profile = rest.mid(1).trimmed();
    return isSeparator(rest.front()) && !profile.isEmpty() && lastPart(profile) == profile &&
           !isPrivateMark(profile);
}

bool isOrdinaryHead(QStringView head) {
    const QStringView text = head.trimmed();
    return !text.isEmpty() && isSeparator(text.back()) && !isPrivateMark(lastPart(text.chopped(1).trimmed()));
}

struct ProductPlace {
    qsizetype start = -1;
    qsizetype end = -1;
};

/// The last product's: a page's title may name one, too.
ProductPlace productIn(QStringView name, std::string_view bundleIdentifier) {
    ProductPlace last;
    for (const Product& each : products) {
        const qsizetype start = name.lastIndexOf(each.name, -1, Qt::CaseInsensitive);
        if (each.bundleIdentifier == bundleIdentifier && start > last.start) {
            last = {start, start + each.name.size()};
        }
    }
    return last;
}

} // namespace

bool isOrdinaryBrowserWindow(std::string_view bundleIdentifier, QStringView name) {
    const QString text = visible(name);
    const ProductPlace product = productIn(text, bundleIdentifier);
    return product.start >= 0 && isOrdinaryHead(QStringView(text).left(product.start)) &&
           isOrdinaryTail(QStringView(text).mid(product.end));
}

} // namespace kestrelfen
