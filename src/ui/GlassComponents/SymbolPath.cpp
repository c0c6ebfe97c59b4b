#include "ui/GlassComponents/SymbolPath.hpp"

#include <QLineF>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace kestrelfen {

namespace {

class Reader {
  public:
    explicit Reader(std::string_view data) : rest_(data) {}

    QPainterPath read() {
        while (isWhole_ && takeCommand()) {
            step();
        }
        return path_;
    }

  private:
    void skipSeparators() {
        while (!rest_.empty() && (rest_.front() == ' ' || rest_.front() == ',')) {
            rest_.remove_prefix(1);
        }
    }

    /// A further set of numbers repeats the command; after a move it is a line.
    bool takeCommand() {
        skipSeparators();
        if (rest_.empty()) {
            return false;
        }
        const char next = rest_.front();
        const bool isLetter = (next >= 'A' && next <= 'Z') || (next >= 'a' && next <= 'z');
        if (isLetter) {
            rest_.remove_prefix(1);
            command_ = next;
        } else if (command_ == 'M' || command_ == 'm') {
            command_ = command_ == 'M' ? 'L' : 'l';
        }
        return isLetter || (command_ != 0 && command_ != 'Z' && command_ != 'z');
    }

    double number() {
        skipSeparators();
        double value = 0;
        const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), value);
        isWhole_ = isWhole_ && error == std::errc();
        rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
        return value;
    }

    bool isRelative() const { return command_ >= 'a'; }

    QPointF here() const { return path_.currentPosition(); }

    QPointF point() {
        const double x = number();
        const double y = number();
        return QPointF(x, y) + (isRelative() ? here() : QPointF());
    }

    void step() {
        switch (command_) {
        case 'M':
        case 'm':
            return path_.moveTo(point());
        case 'L':
        case 'l':
            return path_.lineTo(point());
        case 'H':
        case 'h':
            return path_.lineTo(number() + (isRelative() ? here().x() : 0.0), here().y());
        case 'V':
        case 'v':
            return path_.lineTo(here().x(), number() + (isRelative() ? here().y() : 0.0));
        case 'C':
        case 'c':
            return curve();
        case 'A':
        case 'a':
            return arc();
        case 'Z':
        case 'z':
            return path_.closeSubpath();
        default:
            isWhole_ = false;
        }
    }

    void curve() {
        const QPointF first = point();
        const QPointF second = point();
        path_.cubicTo(first, second, point());
    }

    /// Of the two circles through both ends that have the radius, the flags choose one, and which way round.
    void arc() {
        const double wanted = number();
        number();
        number();
        const bool isLarge = number() != 0.0;
        const bool isClockwise = number() != 0.0;
        const QPointF start = here();
        const QPointF end = point();
        const QLineF chord(start, end);
        if (chord.isNull()) {
            return;
        }
        const double radius = std::max(wanted, chord.length() / 2);
        const double height = std::sqrt(std::max(0.0, radius * radius - chord.length() * chord.length() / 4));
        const QPointF normal = QPointF(-chord.dy(), chord.dx()) / chord.length();
        const QPointF centre = chord.center() + normal * (isLarge == isClockwise ? -height : height);
        const double from = QLineF(centre, start).angle();
        double sweep = QLineF(centre, end).angle() - from;
        if (isClockwise && sweep > 0) {
            sweep -= 360;
        } else if (!isClockwise && sweep < 0) {
            sweep += 360;
        }
        path_.arcTo(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius, from, sweep);
    }

    std::string_view rest_;
    char command_ = 0;
    bool isWhole_ = true;
    QPainterPath path_;
};

} // namespace

QPainterPath symbolPath(std::string_view data) {
    return Reader(data).read();
}

} // namespace kestrelfen
