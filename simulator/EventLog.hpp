#pragma once

#include "Forms.hpp"
#include "Json.hpp"

#include <map>
#include <string>

namespace kestrelfen {

/// What happened outside the program: printed as it happens when that is on, and the latest of each kind
/// kept.
class EventLog {
  public:
    /// The kinds that there are.
    static bool isKind(const std::string& kind);
    static FormList kindForms();

    void setPrinting(bool printing) { printing_ = printing; }

    /// `details` follow the kind and the date.
    void add(const std::string& kind, Date at, const Json& details);

    /// The latest event of that kind, or null.
    Json latest(const std::string& kind) const;

    void forget() { latest_.clear(); }

  private:
    bool printing_ = false;
    std::map<std::string, Json> latest_;
};

} // namespace kestrelfen
