#include "platform/linux/networkmanager/NetworkManagerPreferences.h"

#include "platform/linux/networkmanager/NetworkManagerActivation.h"
#include "platform/linux/networkmanager/NetworkManagerError.h"
#include "platform/linux/networkmanager/NetworkManagerServices.h"
#include "platform/linux/networkmanager/PolkitRights.h"
#include "platform/linux/networkmanager/ProfileTranslation.h"
#include "platform/linux/networkmanager/ProfileTrial.h"

#include <QElapsedTimer>

#include <fcntl.h>
#include <utility>

namespace ardeo
{

namespace
{

/// The daemon's runtime folder: it is there when the daemon is, everybody may open it for reading, and a lock
/// on it vanishes with its holder, however that one ends.
constexpr auto lockFolder = "/run/NetworkManager";

/// Whether the profile's network is there; that of anything but Wi-Fi is where its device is ready.
bool isInReach(NMDevice* device, NMRemoteConnection* connection)
{
    const GPtrArray* available = nm_device_get_available_connections(device);
    return !NM_IS_DEVICE_WIFI(device) ||
           g_ptr_array_find(const_cast<GPtrArray*>(available), connection, nullptr);
}

} // namespace

NetworkManagerPreferences::NetworkManagerPreferences(std::shared_ptr<NetworkManagerSession> session,
                                                     SystemStatus& status, bool authorized,
                                                     const WaitingObserver& waiting)
    : m_session(std::move(session))
    , m_status(status)
    , m_authorized(authorized)
    , m_lock(QLatin1String(lockFolder), O_RDONLY | O_DIRECTORY, waiting)
{
}

bool NetworkManagerPreferences::end(SystemStatus status)
{
    m_status = status;
    return status == SystemStatus::ok;
}

std::shared_ptr<NetworkSet> NetworkManagerPreferences::currentSet()
{
    m_status = SystemStatus::ok;
    if (!m_profilesListed) {
        m_profiles = listProfiles(m_session->client());
        m_profilesListed = true;
    }
    return networkSetOf(m_session, m_profiles);
}

bool NetworkManagerPreferences::lock(bool wait)
{
    if (!m_authorized)
        return end(SystemStatus::accessError);
    if (m_lock.isTaken())
        return end(SystemStatus::locked);
    SystemStatus status = takeFileLock(wait);
    if (status == SystemStatus::ok)
        status = checkRights();
    if (status != SystemStatus::ok)
        unlock();
    return end(status);
}

SystemStatus NetworkManagerPreferences::takeFileLock(bool wait)
{
    QElapsedTimer waiting;
    waiting.start();
    const SystemStatus status = m_lock.take(wait);
    if (status != SystemStatus::ok || !m_lock.wasWaitedFor())
        return status;
    m_session->extendDeadline(waiting.elapsed());
    // What the holder before us wrote is what we have to start from.
    m_profilesListed = false;
    return m_session->reconnect() ? SystemStatus::ok : SystemStatus::noStoreServer;
}

SystemStatus NetworkManagerPreferences::checkRights()
{
    m_hasPersonalProfiles = hasPersonalProfiles(m_session->client());
    const SystemStatus status = checkRight(networkControlAction);
    return status != SystemStatus::ok || m_hasPersonalProfiles ? status : checkRight(modifySystemAction);
}

SystemStatus NetworkManagerPreferences::checkRight(const char* action)
{
    const auto answer = askPolkit(m_session->loop(), m_session->deadline(), action, false);
    // A consent that lapsed is refused here, so that the next action prompts and not the daemon in the
    // middle of this one. One that polkit never keeps can only be asked for by the daemon itself.
    if (!answer || (!answer->authorized && answer->keepsConsent))
        return SystemStatus::accessError;
    if (!answer->authorized)
        m_session->removeDeadline();
    return SystemStatus::ok;
}

bool NetworkManagerPreferences::unlock()
{
    if (!m_lock.isTaken())
        return end(SystemStatus::needLock);
    m_lock.release();
    return end(SystemStatus::ok);
}

bool NetworkManagerPreferences::commitChanges()
{
    if (!m_lock.isTaken())
        return end(SystemStatus::needLock);
    for (const auto& profile : m_profiles) {
        if (!profile->seen)
            continue;
        const SystemStatus status = commit(*profile);
        if (status != SystemStatus::ok)
            return end(status);
    }
    return end(SystemStatus::ok);
}

SystemStatus NetworkManagerPreferences::checkRightToChange(const Profile& profile)
{
    if (!m_hasPersonalProfiles)
        return SystemStatus::ok;
    const bool isOwn = isPersonal(NM_CONNECTION(profile.connection.get()));
    return checkRight(isOwn ? modifyOwnAction : modifySystemAction);
}

SystemStatus NetworkManagerPreferences::commit(Profile& profile)
{
    SystemStatus status = checkRightToChange(profile);
    if (status != SystemStatus::ok)
        return status;
    GLibError error;
    GRef<NMConnection> changed = m_session->read(profile.connection.get(), error);
    if (!changed)
        return statusOf(error);
    if (trialOf(changed.get())) {
        m_session->refuse(trialReason());
        return SystemStatus::preferencesBusy;
    }
    constexpr auto ignored = static_cast<NMSettingCompareFlags>(NM_SETTING_COMPARE_FLAG_IGNORE_SECRETS |
                                                                NM_SETTING_COMPARE_FLAG_IGNORE_TIMESTAMP);
    if (!nm_connection_compare(changed.get(), profile.seen.get(), ignored))
        return SystemStatus::stale;
    const GRef<NMConnection> before(nm_simple_connection_new_clone(changed.get()));
    if (!change(changed.get(), profile.changes))
        return SystemStatus::invalidArgument;

    for (NMActiveConnection* active : activationsOf(m_session->client(), profile.connection.get()))
        profile.activationsBefore.insert(nm_object_get_path(NM_OBJECT(active)));
    // To disk, also if the daemon made the profile up. The daemon may connect a profile that was just enabled
    // before apply does, with the same settings; keeping it from that would keep it from connecting when the
    // cable comes back, too.
    status = m_trial ? putOnTrial(profile, changed.get(), before.get())
                     : update(profile, changed.get(), NM_SETTINGS_UPDATE2_FLAG_TO_DISK);
    if (status != SystemStatus::ok)
        return status;
    profile.seen.reset();
    profile.committed = std::move(changed);
    return SystemStatus::ok;
}

/// Without settings, only where they are kept changes. Secrets are not among those that were read, and an
/// update without any leaves them as they are.
SystemStatus NetworkManagerPreferences::update(const Profile& profile, NMConnection* settings, guint32 flags)
{
    GVariant* content = settings ? nm_connection_to_dbus(settings, NM_CONNECTION_SERIALIZE_ALL)
                                 : g_variant_new_array(G_VARIANT_TYPE("{sa{sv}}"), nullptr, 0);
    GLibError error;
    const GVariantRef updated =
        m_session->ask(profile.connection.get(), "Update2",
                       g_variant_new("(@a{sa{sv}}ua{sv})", content, flags, nullptr), nullptr, error);
    if (updated)
        return SystemStatus::ok;
    // What is wrong with the profile has been found before; the daemon says the same of a disk that is full.
    const SystemStatus status = statusOf(error);
    return status == SystemStatus::invalidArgument ? SystemStatus::failed : status;
}

bool NetworkManagerPreferences::applyChanges()
{
    if (!m_lock.isTaken())
        return end(SystemStatus::needLock);
    for (const auto& profile : m_profiles) {
        if (!profile->committed)
            continue;
        const SystemStatus status = apply(*profile);
        if (status != SystemStatus::ok) {
            if (m_trial)
                endTrial(*profile, false);
            return end(status);
        }
    }
    return end(SystemStatus::ok);
}

SystemStatus NetworkManagerPreferences::apply(const Profile& profile)
{
    // The daemon may have connected the profile meanwhile.
    if (!m_session->catchUp())
        return SystemStatus::noStoreServer;
    // It may also go away while it is asked, and its objects with it.
    std::vector<GRef<NMActiveConnection>> actives;
    for (NMActiveConnection* active : activationsOf(m_session->client(), profile.connection.get()))
        actives.push_back(newRef(active));
    if (actives.empty())
        return applyToInactive(profile);
    for (const auto& active : actives) {
        const SystemStatus status = applyToActive(profile, active.get());
        if (status != SystemStatus::ok)
            return status;
    }
    return SystemStatus::ok;
}

SystemStatus NetworkManagerPreferences::applyToActive(const Profile& profile, NMActiveConnection* active)
{
    NetworkManagerActivation activation(*m_session, profile.connection.get(), profile.committed.get());
    const GRef<NMDevice> device = newRef(deviceOf(active));
    if (profile.changes.enabled == false)
        return activation.takeDown(active);
    if (!profile.activationsBefore.contains(nm_object_get_path(NM_OBJECT(active))))
        return activation.awaitIPv4(active, device.get());
    const bool freshLease = device && profile.changes.askForLease();
    return freshLease || profile.changes.changeSettings() ? activation.renew(active, device.get(), freshLease)
                                                          : SystemStatus::ok;
}

SystemStatus NetworkManagerPreferences::applyToInactive(const Profile& profile)
{
    NMRemoteConnection* connection = profile.connection.get();
    const bool enabling = profile.changes.enabled == true;
    if (!isEnabled(profile.committed.get()))
        return SystemStatus::ok;
    NetworkManagerActivation activation(*m_session, connection, profile.committed.get());
    const GRef<NMDevice> device = newRef(deviceOf(m_session->client(), connection));
    if (!device) {
        // A bridge, for example, has its device only while it is up; hardware that is not there is another
        // matter.
        const bool isVPN =
            nm_connection_is_type(NM_CONNECTION(connection), NM_SETTING_VPN_SETTING_NAME) != FALSE;
        const bool makesItsDevice = nm_connection_is_virtual(NM_CONNECTION(connection)) != FALSE;
        return makesItsDevice || (isVPN && enabling) ? activation.takeUp(nullptr) : SystemStatus::ok;
    }
    // What cannot be taken up now, the daemon takes up by itself, as it was saved, when a cable or a network
    // is there; unless somebody took it down by hand: that counts until it is activated again, and what can
    // do without its cable can be activated now.
    const Readiness readiness = readinessOf(device.get());
    const bool wasTakenDown = enabling || !nm_device_get_autoconnect(device.get());
    if (readiness == Readiness::unready)
        return wasTakenDown ? activation.beginToTakeUp(device.get()) : SystemStatus::ok;
    if (readiness == Readiness::held && !enabling)
        return SystemStatus::ok;
    if (isInReach(device.get(), connection))
        return activation.takeUp(device.get());
    return enabling ? activation.beginToTakeUp(device.get()) : SystemStatus::ok;
}

} // namespace ardeo
