# The Qt Quick face: models that publish the contents, painted items and the views.

find_package(Qt6 6.4 REQUIRED COMPONENTS Quick)

set(views
    BreakOverlayView/BreakOverlayButton.qml
    BreakOverlayView/BreakOverlayView.qml
    BreakOverlayView/BreathingRing.qml
    BreakOverlayView/CadenceIndicator.qml
    GlassComponents/CountdownRing.qml
    GlassComponents/Glass.qml
    GlassComponents/GlassButton.qml
    GlassComponents/HudCard.qml
    GlassComponents/TrackBar.qml
    MenuBarView/MenuBarHeader.qml
    MenuBarView/MenuBarView.qml
    PreBreakWarningView/PreBreakWarningView.qml
    PreBreakWarningView/WarningButtons.qml)

set(models
    BreakOverlayView/BreakOverlayModel.cpp
    BreakOverlayView/BreakOverlayModel.hpp
    ControlListModel.cpp
    ControlListModel.hpp
    EngineFollower.hpp
    GlassComponents/Appearance.cpp
    GlassComponents/Appearance.hpp
    GlassComponents/CardShadow.cpp
    GlassComponents/CardShadow.hpp
    GlassComponents/Halo.cpp
    GlassComponents/Halo.hpp
    GlassComponents/PictureItem.cpp
    GlassComponents/PictureItem.hpp
    GlassComponents/RingArc.cpp
    GlassComponents/RingArc.hpp
    GlassComponents/Wash.cpp
    GlassComponents/Wash.hpp
    MenuBarView/MenuBarModel.cpp
    MenuBarView/MenuBarModel.hpp
    MenuBarView/StatusItemPicture.cpp
    MenuBarView/StatusItemPicture.hpp
    PreBreakWarningView/PreBreakWarningModel.cpp
    PreBreakWarningView/PreBreakWarningModel.hpp)

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
    PRIVATE . BreakOverlayView GlassComponents MenuBarView PreBreakWarningView)
target_link_libraries(kestrelfen_ui PUBLIC kestrelfen_content Qt6::Quick PRIVATE kestrelfen_sanitizers)
qt_add_qml_module(kestrelfen_ui
    URI Kestrelfen
    VERSION 1.0
    RESOURCE_PREFIX /qt/qml
    DEPENDENCIES QtQuick
    QML_FILES ${views}
    OUTPUT_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/Kestrelfen
    SOURCES ${models})
