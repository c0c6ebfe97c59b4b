#pragma once

#include "ui/GlassComponents/Wash.hpp"

#include <QtQml/qqmlregistration.h>

namespace kestrelfen {

/// The popover's background: a wash with round corners. Main thread only.
class PopoverGround : public kestrelfen::Wash {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double radius MEMBER radius_ WRITE setRadius NOTIFY radiusChanged)

  public:
    using Wash::Wash;

    void setRadius(double radius);

  signals:
    void radiusChanged();

  protected:
    QImage makePicture(const QSizeF& size, double ratio) const override;

  private:
    double radius_ = 0;
};

} // namespace kestrelfen
