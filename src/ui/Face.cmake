# The Qt Quick face: models that publish the contents, painted items and the views.

find_package(Qt6 6.4 REQUIRED COMPONENTS Quick)

set(views
    AppListEditor/AppListColumn.qml
    AppListEditor/AppListEditor.qml
    AppListEditor/ListedAppRow.qml
    AppListEditor/RunningAppRow.qml
    AppListEditor/SymbolButton.qml
    BreakHistoryView/BreakHistoryView.qml
    BreakHistoryView/HistoryHeader.qml
    BreakHistoryView/HistoryRow.qml
    BreakOverlayView/BreakOverlayButton.qml
    BreakOverlayView/BreakOverlayView.qml
    BreakOverlayView/BreathingRing.qml
    BreakOverlayView/CadenceIndicator.qml
    GlassComponents/Backdrop.qml
    GlassComponents/CardRow.qml
    GlassComponents/ConfirmDialog.qml
    GlassComponents/CountdownRing.qml
    GlassComponents/DangerAction.qml
    GlassComponents/Eyebrow.qml
    GlassComponents/FocusRing.qml
    GlassComponents/Glass.qml
    GlassComponents/GlassButton.qml
    GlassComponents/GlassSurface.qml
    GlassComponents/GlassToggle.qml
    GlassComponents/HoverTip.qml
    GlassComponents/HudCard.qml
    GlassComponents/Label.qml
    GlassComponents/MarkTile.qml
    GlassComponents/ModalVeil.qml
    GlassComponents/PlainLink.qml
    GlassComponents/PopupMenu.qml
    GlassComponents/PopupMenuRow.qml
    GlassComponents/PressArea.qml
    GlassComponents/PrimaryAction.qml
    GlassComponents/RowGround.qml
    GlassComponents/RowGroup.qml
    GlassComponents/ScrollArea.qml
    GlassComponents/ScrollThumb.qml
    GlassComponents/SecondaryAction.qml
    GlassComponents/SegmentedPill.qml
    GlassComponents/SegmentedPills.qml
    GlassComponents/SelectableCard.qml
    GlassComponents/SettingRow.qml
    GlassComponents/SheetCard.qml
    GlassComponents/StepperButton.qml
    GlassComponents/StepperControl.qml
    GlassComponents/TextInputField.qml
    GlassComponents/ToggleKnob.qml
    GlassComponents/TrackBar.qml
    GlassComponents/TypeBadge.qml
    MainWindowView/ChromeButton.qml
    MainWindowView/MainChrome.qml
    MainWindowView/MainTabs.qml
    MainWindowView/MainWindowView.qml
    MainWindowView/RestingTip.qml
    MenuBarView/ActiveTaskRow.qml
    MenuBarView/CycleChip.qml
    MenuBarView/FooterButton.qml
    MenuBarView/MenuBarActionRow.qml
    MenuBarView/MenuBarColumn.qml
    MenuBarView/MenuBarFooterRow.qml
    MenuBarView/MenuBarHeader.qml
    MenuBarView/MenuBarToday.qml
    MenuBarView/MenuBarView.qml
    MenuBarView/PopoverAction.qml
    MenuBarView/TodayRow.qml
    OnboardingView/CadencePage.qml
    OnboardingView/OnboardingView.qml
    OnboardingView/PageDots.qml
    OnboardingView/PresetCard.qml
    OnboardingView/PresetCards.qml
    OnboardingView/PromiseRow.qml
    OnboardingView/WelcomePage.qml
    PreBreakWarningView/PreBreakWarningView.qml
    PreBreakWarningView/PulsingDisc.qml
    PreBreakWarningView/WarningButtons.qml
    ScreenTimeView/HeroButtons.qml
    ScreenTimeView/HeroCard.qml
    ScreenTimeView/HeroStats.qml
    ScreenTimeView/ScoreCard.qml
    ScreenTimeView/ScoreMeter.qml
    ScreenTimeView/ScreenTimeView.qml
    ScreenTimeView/StoreBanner.qml
    ScreenTimeView/UsageCard.qml
    ScreenTimeView/UsageRow.qml
    ScreenTimeView/WeekBar.qml
    ScreenTimeView/WeekCard.qml
    ScreenTimeView/WeekChart.qml
    SettingsWindowView/ChoiceCard.qml
    SettingsWindowView/HistoryDataButtons.qml
    SettingsWindowView/NotificationPreview.qml
    SettingsWindowView/NotificationPreviews.qml
    SettingsWindowView/PaneBlock.qml
    SettingsWindowView/PaneCallout.qml
    SettingsWindowView/PaneCards.qml
    SettingsWindowView/PaneRow.qml
    SettingsWindowView/PaneRows.qml
    SettingsWindowView/PaneStatus.qml
    SettingsWindowView/RailRow.qml
    SettingsWindowView/SettingsPane.qml
    SettingsWindowView/SettingsRail.qml
    SettingsWindowView/SettingsWindowView.qml
    SettingsWindowView/ToldWord.qml
    TasksView/TaskCheckbox.qml
    TasksView/TaskComposer.qml
    TasksView/TaskFooter.qml
    TasksView/TaskListRow.qml
    TasksView/TaskRowContent.qml
    TasksView/TasksView.qml
    UsageDetailView/CategoryChip.qml
    UsageDetailView/GlassList.qml
    UsageDetailView/MenuLabel.qml
    UsageDetailView/UsageDetailRow.qml
    UsageDetailView/UsageDetailView.qml
    UsageDetailView/UsageFilters.qml)

set(models
    AppListEditor/AppListModel.cpp
    AppListEditor/AppListModel.hpp
    BreakHistoryView/HistoryModel.cpp
    BreakHistoryView/HistoryModel.hpp
    BreakOverlayView/BreakOverlayModel.cpp
    BreakOverlayView/BreakOverlayModel.hpp
    ChangeFollower.hpp
    ControlListModel.cpp
    ControlListModel.hpp
    GlassComponents/Appearance.cpp
    GlassComponents/Appearance.hpp
    GlassComponents/CardShadow.cpp
    GlassComponents/CardShadow.hpp
    GlassComponents/Disc.cpp
    GlassComponents/Disc.hpp
    GlassComponents/Breath.cpp
    GlassComponents/Breath.hpp
    GlassComponents/Halo.cpp
    GlassComponents/Halo.hpp
    GlassComponents/ModalLayer.cpp
    GlassComponents/ModalLayer.hpp
    GlassComponents/Outline.cpp
    GlassComponents/Outline.hpp
    GlassComponents/PictureItem.cpp
    GlassComponents/PictureItem.hpp
    GlassComponents/RingArc.cpp
    GlassComponents/RingArc.hpp
    GlassComponents/SpokenWords.cpp
    GlassComponents/SpokenWords.hpp
    GlassComponents/SpringValue.cpp
    GlassComponents/SpringValue.hpp
    GlassComponents/Symbol.cpp
    GlassComponents/Symbol.hpp
    GlassComponents/SymbolDrawings.cpp
    GlassComponents/SymbolDrawings.hpp
    GlassComponents/SymbolPainting.cpp
    GlassComponents/SymbolPainting.hpp
    GlassComponents/SymbolPath.cpp
    GlassComponents/SymbolPath.hpp
    GlassComponents/TopEdge.cpp
    GlassComponents/TopEdge.hpp
    GlassComponents/Wash.cpp
    GlassComponents/Wash.hpp
    KeyedListModel.cpp
    KeyedListModel.hpp
    MainWindowView/MainWindowModel.cpp
    MainWindowView/MainWindowModel.hpp
    MenuBarView/MenuBarModel.cpp
    MenuBarView/MenuBarModel.hpp
    MenuBarView/StatusItemPicture.cpp
    MenuBarView/StatusItemPicture.hpp
    OnboardingView/OnboardingModel.cpp
    OnboardingView/OnboardingModel.hpp
    PreBreakWarningView/PreBreakWarningModel.cpp
    PreBreakWarningView/PreBreakWarningModel.hpp
    RowListModel.cpp
    RowListModel.hpp
    ScreenTimeView/DashboardModel.cpp
    ScreenTimeView/DashboardModel.hpp
    ScreenTimeView/DashboardObjects.cpp
    ScreenTimeView/DashboardObjects.hpp
    SettingsWindowView/PaneModels.cpp
    SettingsWindowView/PaneModels.hpp
    SettingsWindowView/SettingsModel.cpp
    SettingsWindowView/SettingsModel.hpp
    TasksView/TasksModel.cpp
    TasksView/TasksModel.hpp
    UsageDetailView/UsageDetailModel.cpp
    UsageDetailView/UsageDetailModel.hpp)

# What Qt generates does not keep to our warnings; what we write does.
set_source_files_properties(${models} PROPERTIES COMPILE_OPTIONS "${KESTRELFEN_WARNINGS}")

# All views are one QML module whatever folder they stand in.
foreach(view ${views})
    get_filename_component(name ${view} NAME)
    set_source_files_properties(${view} PROPERTIES QT_RESOURCE_ALIAS ${name})
endforeach()
set_source_files_properties(GlassComponents/Glass.qml PROPERTIES QT_QML_SINGLETON_TYPE TRUE)

qt_add_library(kestrelfen_ui STATIC)
# moc of Qt 6.4 cannot read the standard library's <concepts>; it needs nothing from there.
set_target_properties(kestrelfen_ui PROPERTIES AUTOMOC ON AUTOMOC_MOC_OPTIONS "-D_GLIBCXX_CONCEPTS")
target_include_directories(kestrelfen_ui
    PUBLIC ${PROJECT_SOURCE_DIR}/src
    PRIVATE . AppListEditor BreakHistoryView BreakOverlayView GlassComponents MainWindowView MenuBarView OnboardingView
        PreBreakWarningView ScreenTimeView SettingsWindowView TasksView UsageDetailView)
target_link_libraries(kestrelfen_ui PUBLIC kestrelfen_content Qt6::Quick PRIVATE kestrelfen_sanitizers)
# As pedantic code has it: what is precompiled must agree with both kinds.
target_compile_options(kestrelfen_ui PRIVATE -Wvla)
kestrelfen_precompile(kestrelfen_ui QtQml/qqmlprivate.h QPainter QQuickItem QVariantMap
    algorithm functional map memory optional string vector)
# Where speed is not the point the views are read as they stand: compiling them ahead takes long and shows nothing more.
set(cached)
if(KESTRELFEN_SANITIZE OR CMAKE_BUILD_TYPE STREQUAL "Debug")
    set(cached NO_CACHEGEN)
endif()
qt_add_qml_module(kestrelfen_ui
    URI Kestrelfen
    VERSION 1.0
    RESOURCE_PREFIX /qt/qml
    ${cached}
    DEPENDENCIES QtQuick
    QML_FILES ${views}
    OUTPUT_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/Kestrelfen
    SOURCES ${models})
