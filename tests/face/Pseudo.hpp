#pragma once

#include "support/PseudoCatalogue.hpp"
#include "ui/Wording.hpp"

#include <QString>

namespace kestrelfen {

/// From its beginning to its end every text is in the pseudo language. A test that derives from it does so
/// before anything else, as some texts are looked up when a view is made.
class Pseudo {
  public:
    Pseudo() { useCatalogue(&worded_); }
    ~Pseudo() { useCatalogue(nullptr); }
    Pseudo(const Pseudo&) = delete;
    Pseudo& operator=(const Pseudo&) = delete;

    static QString pseudo(const char* original) {
        return QString::fromStdString(PseudoCatalogue::inPseudo(original));
    }

  private:
    PseudoCatalogue pseudo_;
    WordedCatalogue worded_{pseudo_};
};

} // namespace kestrelfen
