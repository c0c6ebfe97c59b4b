#include "platform/linux/StatusNotifierProperties.hpp"

#include <QByteArray>
#include <QDBusArgument>
#include <QDBusMetaType>
#include <QList>
#include <QtEndian>

#include <cstddef>

namespace kestrelfen {

namespace {

/// One picture as the bus carries it: (iiay), in network byte order.
struct Pixmap {
    int width = 0;
    int height = 0;
    QByteArray bytes;
};

/// (sa(iiay)ss)
struct ToolTip {
    QString iconName;
    QList<Pixmap> pixmaps;
    QString title;
    QString text;
};

constexpr char introspectionXml[] = R"xml(<interface name="org.kde.StatusNotifierItem">
<property name="Category" type="s" access="read"/>
<property name="Id" type="s" access="read"/>
<property name="Title" type="s" access="read"/>
<property name="Status" type="s" access="read"/>
<property name="WindowId" type="i" access="read"/>
<property name="IconName" type="s" access="read"/>
<property name="IconThemePath" type="s" access="read"/>
<property name="IconPixmap" type="a(iiay)" access="read"/>
<property name="OverlayIconName" type="s" access="read"/>
<property name="AttentionIconName" type="s" access="read"/>
<property name="ToolTip" type="(sa(iiay)ss)" access="read"/>
<property name="ItemIsMenu" type="b" access="read"/>
<property name="XAyatanaLabel" type="s" access="read"/>
<property name="XAyatanaLabelGuide" type="s" access="read"/>
<method name="Activate">
<arg name="x" type="i" direction="in"/><arg name="y" type="i" direction="in"/>
</method>
<method name="SecondaryActivate">
<arg name="x" type="i" direction="in"/><arg name="y" type="i" direction="in"/>
</method>
<method name="ContextMenu">
<arg name="x" type="i" direction="in"/><arg name="y" type="i" direction="in"/>
</method>
<method name="Scroll">
<arg name="delta" type="i" direction="in"/><arg name="orientation" type="s" direction="in"/>
</method>
<signal name="NewTitle"/>
<signal name="NewIcon"/>
<signal name="NewToolTip"/>
<signal name="NewStatus"><arg name="status" type="s"/></signal>
<signal name="XAyatanaNewLabel"><arg name="label" type="s"/><arg name="guide" type="s"/></signal>
</interface>)xml";

QDBusArgument& operator<<(QDBusArgument& argument, const Pixmap& pixmap) {
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.bytes;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Pixmap& pixmap) {
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.bytes;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const ToolTip& toolTip) {
    argument.beginStructure();
    argument << toolTip.iconName << toolTip.pixmaps << toolTip.title << toolTip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, ToolTip& toolTip) {
    argument.beginStructure();
    argument >> toolTip.iconName >> toolTip.pixmaps >> toolTip.title >> toolTip.text;
    argument.endStructure();
    return argument;
}

Pixmap pixmapOf(const TrayPicture& picture) {
    QByteArray bytes(static_cast<qsizetype>(picture.argb.size() * sizeof(std::uint32_t)), Qt::Uninitialized);
    qToBigEndian<std::uint32_t>(picture.argb.data(), static_cast<qsizetype>(picture.argb.size()),
                                bytes.data());
    return {picture.size, picture.size, bytes};
}

QVariant pixmapsOf(const std::vector<TrayPicture>& pictures) {
    QList<Pixmap> pixmaps;
    for (const TrayPicture& picture : pictures) {
        pixmaps.append(pixmapOf(picture));
    }
    return QVariant::fromValue(pixmaps);
}

/// There is no Menu, so that hosts hand every click over instead of opening one.
QVariantMap constants() {
    return {
        {"Category", "ApplicationStatus"},
        {"Id", "kestrelfen"},
        {"Status", "Active"},
        {"WindowId", 0},
        {"IconName", ""},
        {"IconThemePath", ""},
        {"OverlayIconName", ""},
        {"AttentionIconName", ""},
        {"ItemIsMenu", false},
    };
}

void registerTypes() {
    static const bool once = [] {
        qDBusRegisterMetaType<Pixmap>();
        qDBusRegisterMetaType<QList<Pixmap>>();
        qDBusRegisterMetaType<ToolTip>();
        return true;
    }();
    static_cast<void>(once);
}

} // namespace

StatusNotifierProperties::StatusNotifierProperties(const TrayContent& content) : content_(content) {
    registerTypes();
}

QVariantMap StatusNotifierProperties::all() const {
    QVariantMap properties = constants();
    for (const char* const name : {"Title", "IconPixmap", "ToolTip", "XAyatanaLabel", "XAyatanaLabelGuide"}) {
        properties.insert(name, value(name));
    }
    return properties;
}

QVariant StatusNotifierProperties::value(const QString& name) const {
    if (name == "Title") {
        return QString::fromStdString(content_.title);
    }
    if (name == "IconPixmap") {
        return pixmapsOf(content_.pictures);
    }
    if (name == "XAyatanaLabel") {
        return QString::fromStdString(content_.label ? content_.label() : std::string());
    }
    if (name == "XAyatanaLabelGuide") {
        return QString::fromStdString(content_.labelGuide);
    }
    return name == "ToolTip" ? toolTip() : constants().value(name);
}

QVariant StatusNotifierProperties::toolTip() const {
    const std::string text = content_.tooltip ? content_.tooltip() : std::string();
    return QVariant::fromValue(
        ToolTip{QString(""), {}, QString::fromStdString(content_.title), QString::fromStdString(text)});
}

QString StatusNotifierProperties::introspection() {
    return introspectionXml;
}

} // namespace kestrelfen
