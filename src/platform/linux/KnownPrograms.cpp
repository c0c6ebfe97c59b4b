#include "platform/linux/KnownPrograms.hpp"

#include "platform/linux/Caseless.hpp"

#include <algorithm>
#include <iterator>

namespace kestrelfen {

namespace {

// Names that other products bear too, like "warp" or "Navigator", have no place here.
constexpr KnownPrograms::Row table[]{
    {"us.zoom.Zoom", "us.zoom.xos"},
    {"zoom", "us.zoom.xos"},
    {"zoom-client", "us.zoom.xos"},
    {"ZoomLauncher", "us.zoom.xos"},
    {"com.microsoft.Teams", "com.microsoft.teams"},
    {"microsoft-teams", "com.microsoft.teams"},
    {"Microsoft Teams - Insiders", "com.microsoft.teams"},
    {"Microsoft Teams - Preview", "com.microsoft.teams"},
    {"teams", "com.microsoft.teams"},
    {"teams-insiders", "com.microsoft.teams"},
    {"com.github.IsmaelMartinez.teams_for_linux", "com.microsoft.teams2"},
    {"teams-for-linux", "com.microsoft.teams2"},
    {"CiscoCollabHost", "com.cisco.webexmeetingsapp"},
    {"webex", "com.cisco.webexmeetingsapp"},
    {"com.slack.Slack", "com.tinyspeck.slackmacgap"},
    {"slack", "com.tinyspeck.slackmacgap"},
    {"com.discordapp.Discord", "com.hnc.Discord"},
    {"discord", "com.hnc.Discord"},
    {"com.skype.Client", "com.skype.skype"},
    {"skype", "com.skype.skype"},
    {"skypeforlinux", "com.skype.skype"},

    {"chrome", "com.google.Chrome"},
    {"com.google.Chrome", "com.google.Chrome"},
    {"google-chrome", "com.google.Chrome"},
    {"google-chrome-stable", "com.google.Chrome"},
    {"firefox", "org.mozilla.firefox"},
    {"firefox-bin", "org.mozilla.firefox"},
    {"firefox-esr", "org.mozilla.firefox"},
    {"org.mozilla.firefox", "org.mozilla.firefox"},
    {"brave", "com.brave.Browser"},
    {"brave-browser", "com.brave.Browser"},
    {"brave-browser-stable", "com.brave.Browser"},
    {"com.brave.Browser", "com.brave.Browser"},
    {"com.microsoft.Edge", "com.microsoft.edgemac"},
    {"microsoft-edge", "com.microsoft.edgemac"},
    {"microsoft-edge-stable", "com.microsoft.edgemac"},
    {"msedge", "com.microsoft.edgemac"},
    {"com.vivaldi.Vivaldi", "com.vivaldi.Vivaldi"},
    {"vivaldi", "com.vivaldi.Vivaldi"},
    {"vivaldi-bin", "com.vivaldi.Vivaldi"},
    {"vivaldi-stable", "com.vivaldi.Vivaldi"},
    {"com.opera.Opera", "com.operasoftware.Opera"},
    {"opera", "com.operasoftware.Opera"},
    {"opera-stable", "com.operasoftware.Opera"},
    {"app.zen_browser.zen", "app.zen-browser.zen"},
    {"io.github.zen_browser.zen", "app.zen-browser.zen"},
    {"zen", "app.zen-browser.zen"},
    {"zen-alpha", "app.zen-browser.zen"},
    {"zen-beta", "app.zen-browser.zen"},
    {"zen-bin", "app.zen-browser.zen"},
    {"zen-browser", "app.zen-browser.zen"},

    {"org.videolan.VLC", "org.videolan.vlc"},
    {"vlc", "org.videolan.vlc"},
    {"plex", "tv.plex.desktop"},
    {"plex-desktop", "tv.plex.desktop"},
    {"tv.plex.PlexDesktop", "tv.plex.desktop"},
    {"com.spotify.Client", "com.spotify.client"},
    {"spotify", "com.spotify.client"},

    {"code", "com.microsoft.VSCode"},
    {"code-url-handler", "com.microsoft.VSCode"},
    {"com.visualstudio.code", "com.microsoft.VSCode"},
    {"visual-studio-code", "com.microsoft.VSCode"},
    {"dev.warp.Warp", "dev.warp.Warp-Stable"},
    {"warp-terminal", "dev.warp.Warp-Stable"},
    {"figma-linux", "com.figma.Desktop"},
    {"io.github.Figma_Linux.figma_linux", "com.figma.Desktop"},
    {"notion", "notion.id"},
    {"notion-app", "notion.id"},
    {"notion-app-enhanced", "notion.id"},
    {"notion-desktop", "notion.id"},
    {"notion-snap", "notion.id"},
    {"notion-snap-reborn", "notion.id"},

    {"org.telegram.desktop", "ru.keepcoder.Telegram"},
    {"telegram", "ru.keepcoder.Telegram"},
    {"telegram-desktop", "ru.keepcoder.Telegram"},
    {"TelegramDesktop", "ru.keepcoder.Telegram"},
    {"com.github.eneshecan.WhatsAppForLinux", "net.whatsapp.WhatsApp"},
    {"com.ktechpit.whatsie", "net.whatsapp.WhatsApp"},
    {"com.rtosta.zapzap", "net.whatsapp.WhatsApp"},
    {"whatsapp-for-linux", "net.whatsapp.WhatsApp"},
    {"whatsdesk", "net.whatsapp.WhatsApp"},
    {"whatsie", "net.whatsapp.WhatsApp"},
    {"zapzap", "net.whatsapp.WhatsApp"},

    {"app.kestrelfen.Kestrelfen", "app.kestrelfen.mac"},
    {"kestrelfen", "app.kestrelfen.mac"},
};

constexpr std::string_view absent[]{
    "ai.perplexity.comet",
    "com.apple.ActivityMonitor",
    "com.apple.FaceTime",
    "com.apple.MobileSMS",
    "com.apple.Music",
    "com.apple.Notes",
    "com.apple.QuickTimePlayerX",
    "com.apple.Safari",
    "com.apple.TV",
    "com.apple.Terminal",
    "com.apple.dt.Xcode",
    "com.apple.finder",
    "com.apple.mail",
    "com.apple.screencaptureui",
    "com.apple.systempreferences",
    "com.colliderli.iina",
    "com.googlecode.iterm2",
    "com.linear",
    "company.thebrowser.Browser",
};

} // namespace

std::span<const KnownPrograms::Row> KnownPrograms::rows() {
    return table;
}

std::span<const std::string_view> KnownPrograms::absentProducts() {
    return absent;
}

std::optional<std::string_view> KnownPrograms::bundleIdentifier(std::string_view name) {
    const auto* const found = std::find_if(std::begin(table), std::end(table), [&](const Row& row) {
        return areSameWithoutCase(row.name, name);
    });
    return found == std::end(table) ? std::nullopt : std::optional(found->bundleIdentifier);
}

} // namespace kestrelfen
