#pragma once

#include "model/MainViewModel.h"

#include <QPointer>
#include <QWidget>

namespace ardeo
{

class PresetList;
class ProfileNameSheet;

/// The sidebar: the adapter picker with a summary of the selected adapter, and the saved profiles.
class LeftPanel final : public QWidget
{
    Q_OBJECT

public:
    explicit LeftPanel(MainViewModel& model, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QWidget* makeProfileSection();
    QWidget* makeSearchRow();
    void leaveSearch();
    QWidget* makeListArea();
    QWidget* makeBottomBar();
    void followSheets();
    void showSheet(ProfileNameSheet* sheet);

    /// The saved profiles, for what is bound to them.
    const QList<NetworkPreset>& presets();

    MainViewModel& vm;
    Observed<Text> presetFilter;
    Observed<bool> showSaveSheet{false};
    Observed<Text> newPresetName;
    Observed<std::optional<NetworkPreset>> presetToDelete;
    Observed<std::optional<NetworkPreset>> presetToRename;
    Observed<Text> renameText;
    /// Counts the changes of the list of profiles, which is no property itself.
    QProperty<int> m_presetChanges{0};
    PresetList* m_list = nullptr;
    QPointer<ProfileNameSheet> m_sheet;
};

} // namespace ardeo
