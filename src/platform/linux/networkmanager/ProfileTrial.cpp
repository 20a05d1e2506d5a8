#include "platform/linux/networkmanager/ProfileTrial.h"

#include <QByteArray>

#include <array>
#include <ctime>

namespace ardeo
{

namespace
{

// The trial is kept as texts of the setting that NetworkManager leaves to its users.
constexpr auto confirmByKey = "org.ardeo.IPConfig.trial.confirm-by";
constexpr auto checkpointKey = "org.ardeo.IPConfig.trial.checkpoint";
constexpr auto wasSavedKey = "org.ardeo.IPConfig.trial.was-saved";
constexpr auto beforeKey = "org.ardeo.IPConfig.trial.before.";
constexpr qsizetype longestText = 8000;

/// The sections that a change may touch, that of the trial among them.
constexpr std::array touched{NM_SETTING_CONNECTION_SETTING_NAME, NM_SETTING_IP4_CONFIG_SETTING_NAME,
                             NM_SETTING_IP6_CONFIG_SETTING_NAME, NM_SETTING_USER_SETTING_NAME};

NMSettingUser* userSettingOf(NMConnection* profile)
{
    return NM_SETTING_USER(nm_connection_get_setting(profile, NM_TYPE_SETTING_USER));
}

/// Those sections of the profile, as a text.
QByteArray textOf(NMConnection* profile)
{
    const GVariantRef settings(
        g_variant_ref_sink(nm_connection_to_dbus(profile, NM_CONNECTION_SERIALIZE_ALL)));
    GVariantBuilder builder;
    g_variant_builder_init(&builder, G_VARIANT_TYPE("a{sa{sv}}"));
    for (const char* name : touched) {
        const GVariantRef section(g_variant_lookup_value(settings.get(), name, G_VARIANT_TYPE_VARDICT));
        if (section)
            g_variant_builder_add(&builder, "{s@a{sv}}", name, section.get());
    }
    const GVariantRef sections(g_variant_ref_sink(g_variant_builder_end(&builder)));
    const std::unique_ptr<char, decltype(&g_free)> text(g_variant_print(sections.get(), TRUE), &g_free);
    return text.get();
}

/// The profile of such a text; null when it is none.
GRef<NMConnection> profileFrom(const QByteArray& text)
{
    const GVariantRef settings(
        g_variant_parse(G_VARIANT_TYPE("a{sa{sv}}"), text.constData(), nullptr, nullptr, nullptr));
    GRef<NMConnection> profile(nm_simple_connection_new());
    return settings && nm_connection_replace_settings(profile.get(), settings.get(), nullptr)
               ? std::move(profile)
               : nullptr;
}

} // namespace

std::optional<ProfileTrial> trialOf(NMConnection* profile)
{
    NMSettingUser* user = userSettingOf(profile);
    const auto text = [user](const QByteArray& key) {
        return QByteArray(user ? nm_setting_user_get_data(user, key.constData()) : nullptr);
    };
    bool isNumber = false;
    const qint64 deadline = text(confirmByKey).toLongLong(&isNumber);
    QByteArray before;
    for (int i = 0; !text(beforeKey + QByteArray::number(i)).isEmpty(); ++i)
        before += text(beforeKey + QByteArray::number(i));
    ProfileTrial trial{.confirmBy = std::chrono::milliseconds(deadline),
                       .checkpoint = text(checkpointKey).toStdString(),
                       .wasSaved = text(wasSavedKey) == "true",
                       .before = profileFrom(before)};
    return isNumber && trial.before && nm_connection_get_setting_connection(trial.before.get())
               ? std::optional(std::move(trial))
               : std::nullopt;
}

void putOnTrial(NMConnection* changed, NMConnection* before, std::chrono::milliseconds confirmBy,
                const char* checkpoint, bool wasSaved)
{
    if (!userSettingOf(changed))
        nm_connection_add_setting(changed, nm_setting_user_new());
    const auto keep = [user = userSettingOf(changed)](const QByteArray& key, const QByteArray& text) {
        nm_setting_user_set_data(user, key.constData(), text.constData(), nullptr);
    };
    keep(confirmByKey, QByteArray::number(qint64(confirmBy.count())));
    keep(checkpointKey, checkpoint);
    keep(wasSavedKey, wasSaved ? "true" : "false");
    const QByteArray text = textOf(before);
    for (qsizetype i = 0; i * longestText < text.size(); ++i)
        keep(beforeKey + QByteArray::number(i), text.mid(i * longestText, longestText));
}

void takeBack(NMConnection* profile, const ProfileTrial& trial)
{
    NMConnection* before = trial.before.get();
    NMSettingConnection* common = nm_connection_get_setting_connection(before);
    g_object_set(nm_connection_get_setting_connection(profile), NM_SETTING_CONNECTION_AUTOCONNECT,
                 nm_setting_connection_get_autoconnect(common), NM_SETTING_CONNECTION_TIMESTAMP,
                 nm_setting_connection_get_timestamp(common), nullptr);
    confirm(profile);
    for (const char* name : {NM_SETTING_IP4_CONFIG_SETTING_NAME, NM_SETTING_IP6_CONFIG_SETTING_NAME}) {
        if (NMSetting* setting = nm_connection_get_setting_by_name(before, name))
            nm_connection_add_setting(profile, nm_setting_duplicate(setting));
    }
}

void confirm(NMConnection* profile)
{
    NMSettingUser* user = userSettingOf(profile);
    if (!user)
        return;
    for (const char* key : {confirmByKey, checkpointKey, wasSavedKey})
        nm_setting_user_set_data(user, key, nullptr, nullptr);
    for (int i = 0; nm_setting_user_get_data(user, (beforeKey + QByteArray::number(i)).constData()); ++i)
        nm_setting_user_set_data(user, (beforeKey + QByteArray::number(i)).constData(), nullptr, nullptr);
    guint others = 0;
    nm_setting_user_get_keys(user, &others);
    if (others == 0)
        nm_connection_remove_setting(profile, NM_TYPE_SETTING_USER);
}

std::chrono::milliseconds continuousTime()
{
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::seconds(now.tv_sec) +
                                                                 std::chrono::nanoseconds(now.tv_nsec));
}

} // namespace ardeo
