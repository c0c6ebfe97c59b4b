#pragma once

#include "platform/linux/PortalRequests.hpp"
#include "platform/ports/SaveDialog.hpp"

namespace kestrelfen {

/// The desktop's own dialog, by its portal; another way where there is no portal. Main thread only; it never
/// waits. What it is given outlives this object.
class PortalSaveDialog final : public SaveDialog {
  public:
    PortalSaveDialog(PortalRequests& requests, SaveDialog& otherwise)
        : requests_(requests), otherwise_(otherwise) {}

    void ask(const std::string& proposedName, Chosen chosen) override;

  private:
    PortalRequests& requests_;
    SaveDialog& otherwise_;
};

} // namespace kestrelfen
