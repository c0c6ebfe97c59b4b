#pragma once

#include "ui/KeyedListModel.hpp"
#include "ui/SettingsWindowView/PaneContent.hpp"

#include <map>
#include <memory>

namespace kestrelfen {

// Rows and blocks of panes as a view takes them.

/// The roles of a list of rows.
QStringList paneRowRoles();

KeyedListModel::Row keyedRow(const PaneRow& row);
std::vector<KeyedListModel::Row> keyedRows(const std::vector<PaneRow>& rows);

/// The blocks of one pane after another, each with the list of its own rows. Main thread only.
class PaneBlocks {
  public:
    PaneBlocks();

    /// `pane` tells the panes apart: nothing of another one stays.
    void assign(const QString& pane, const std::vector<PaneBlock>& blocks);

    KeyedListModel* model() { return &model_; }

  private:
    KeyedListModel& rowsOf(const QString& key, const PaneBlock& block);

    // The lists go after the model that hands them out.
    std::map<QString, std::unique_ptr<KeyedListModel>> lists_;
    KeyedListModel model_;
};

} // namespace kestrelfen
