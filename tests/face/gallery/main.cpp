#include "ui/GlassComponents/Appearance.hpp"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTimer>
#include <QtQml/QQmlExtensionPlugin>

#include <string_view>

Q_IMPORT_QML_PLUGIN(KestrelfenPlugin)

namespace kestrelfen {
namespace {

/// Long enough for springs and sweeps to come to rest.
constexpr int restMilliseconds = 1500;

/// Qt reads it before the application is there.
void setScale(int argumentCount, char** arguments) {
    for (int index = 1; index + 1 < argumentCount; ++index) {
        if (std::string_view(arguments[index]) == "--scale") {
            qputenv("QT_SCALE_FACTOR", arguments[index + 1]);
        }
    }
}

void define(QCommandLineParser& parser) {
    parser.setApplicationDescription("Shows every component of the kit in every state.");
    parser.addHelpOption();
    parser.addOptions({{"dark", "The dark appearance."},
                       {"contrast", "More contrast."},
                       {"still", "Less motion."},
                       {"mirrored", "From right to left."},
                       {"scale", "Device pixels for each pixel.", "factor"},
                       {"sheet", "What lies over it: confirm, sheet or menu.", "name"},
                       {"tabs", "How often Tab is pressed.", "count"},
                       {"out", "Writes a picture there and ends.", "file"}});
}

void pressTab(QWindow& window) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &press);
}

int run(const QCommandLineParser& arguments) {
    Appearance appearance(arguments.isSet("dark") ? InterfaceStyle::dark : InterfaceStyle::light);
    appearance.setWishes(
        {.highContrast = arguments.isSet("contrast"), .reducedMotion = arguments.isSet("still")});
    QQmlEngine engine;
    engine.addImportPath("qrc:/qt/qml");
    QQuickView window(&engine, nullptr);
    window.setInitialProperties(
        {{"mirrored", arguments.isSet("mirrored")}, {"sheet", arguments.value("sheet")}});
    window.setSource(QUrl::fromLocalFile(QString(GALLERY_DIR) + "/Gallery.qml"));
    if (window.status() != QQuickView::Ready) {
        return 1;
    }
    window.show();
    QTimer::singleShot(restMilliseconds / 2, &window, [&window, &arguments] {
        window.requestActivate();
        for (int tab = 0; tab < arguments.value("tabs").toInt(); ++tab) {
            pressTab(window);
        }
    });
    if (arguments.isSet("out")) {
        QTimer::singleShot(restMilliseconds, &window, [&window, &arguments] {
            QCoreApplication::exit(window.grabWindow().save(arguments.value("out")) ? 0 : 1);
        });
    }
    return QCoreApplication::exec();
}

} // namespace
} // namespace kestrelfen

int main(int argumentCount, char** arguments) {
    kestrelfen::setScale(argumentCount, arguments);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argumentCount, arguments);
    QCommandLineParser parser;
    kestrelfen::define(parser);
    parser.process(application);
    return kestrelfen::run(parser);
}
