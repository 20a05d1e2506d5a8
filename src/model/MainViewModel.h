#pragma once

#include "backend/AuthorizationService.h"
#include "backend/NetworkConfigService.h"
#include "model/Observed.h"
#include "platform/Platform.h"
#include "platform/ProtocolConfiguration.h"
#include "store/NetworkPresetStore.h"

#include <QCoreApplication>
#include <QCoroTask>
#include <QSet>

#include <memory>

namespace ardeo
{

/// The one object behind every window, menu and command: the network services, the selection, what was last
/// read of the selected service, the form that is edited and written, and the feedback on the running action.
///
/// Main thread only. The asynchronous operations leave the main thread only while the service works, may
/// overlap, and keep the model alive until they have ended. None of them fails: what goes wrong is in
/// applyError.
class MainViewModel final : public std::enable_shared_from_this<MainViewModel>
{
    Q_DECLARE_TR_FUNCTIONS(ardeo::MainViewModel)

    struct Key {
    };

public:
    /// A model over the platform, which has to outlive it.
    static std::shared_ptr<MainViewModel> create(Platform& platform);
    MainViewModel(Key, Platform& platform);

    Observed<QList<AdapterInfo>> adapters;
    /// Why the system could not be reached when the services were last listed, as a sentence; none when it
    /// answered.
    Observed<std::optional<Text>> trouble;
    Observed<std::optional<AdapterInfo>> selectedAdapter;
    /// Whether the selected service was not among those that were listed last.
    Observed<bool> selectedIsGone{false};
    /// What was last read of the selected service. Tells its observers of every assignment.
    Observed<NetworkAdapterInfo> currentConfig;

    // The form.
    Observed<IPv4Mode> ipv4Mode{IPv4Mode::dhcp};
    Observed<Text> ipAddress;
    Observed<Text> subnetMask;
    Observed<Text> router;
    Observed<DNSMode> dnsMode{DNSMode::automatic};
    Observed<Text> primaryDNS;
    Observed<Text> alternateDNS;
    /// Domains separated by white space.
    Observed<Text> searchDomains;

    /// A flag, not a counter: of operations that overlap, the first to end clears it. So is isApplying.
    Observed<bool> isLoading{false};
    Observed<bool> isApplying{false};
    /// The last failed action's sentence for the user.
    Observed<std::optional<Text>> applyError;
    /// Which value of it was refused and why, or what else the system said.
    Observed<std::optional<SettingFault>> applyFault;
    Observed<bool> applySuccess{false};
    /// The program that keeps the running action waiting, once it has done so for half a second.
    Observed<std::optional<LockHolder>> waitsFor;
    Observed<bool> isLoginItem;
    /// How many seconds are left to confirm a change of the selected service that is on trial; none where
    /// none is. Counted down while somebody shows the model.
    Observed<std::optional<qint64>> secondsToConfirm;
    /// How many changes on trial are taken back by this model when nobody confirms them.
    Observed<int> guardedTrials{0};

    /// Whether the form differs from what was last read; the search domains are not compared.
    bool hasChanges() const;

    /// Lists the services; selects the first active one, else the first one, where none is selected yet; and
    /// reads the selected one.
    QCoro::Task<> loadAdapters();
    /// Lists the services again and reads the selected one, if it is still there.
    QCoro::Task<> refreshAdapters();
    QCoro::Task<> selectAdapter(AdapterInfo adapter);
    /// Reads the service and fills the form with what it finds.
    QCoro::Task<> loadCurrentConfig(AdapterInfo adapter);

    /// Whether that viewer shows the model on screen. While any does, what others change is followed: the
    /// services and the live state, and the form as long as it has no edits.
    void follow(const QObject* viewer, bool isShown);

    void populateForm(const NetworkAdapterInfo& configuration);
    /// Fills the form from a profile; nothing is written to the system.
    void loadPreset(const NetworkPreset& preset);
    /// Fills the form with what was last read.
    void revertForm();

    // A change on trial is taken back by itself unless endTrial confirms it in time.
    using Trial = NetworkConfigService::Trial;

    /// Writes the form, or of it what is named, to the selected service, reads it again after a second, and
    /// once more three seconds later. On trial, too, where the user works on this computer over that service.
    QCoro::Task<> applyConfiguration(std::optional<Settings> named = {}, Trial trial = {});
    /// What that would change; nothing is locked or written. None when it could not be done, with the reason
    /// in applyError.
    QCoro::Task<std::optional<ChangePlan>> planConfiguration(std::optional<Settings> named = {});
    /// Puts the selected service on DHCP, which takes a new lease; its DNS configuration and the form's edits
    /// have no part in it. Reads it again as after an apply.
    QCoro::Task<> renewDHCPLease(Trial trial = {});
    /// Switches the selected service on or off, and reads it again after half a second.
    QCoro::Task<> setAdapterEnabled(bool enabled, Trial trial = {});
    /// Confirms the change of the selected service that is on trial, or takes it back at once.
    QCoro::Task<> endTrial(bool keep);

    /// Saves the form as a new profile of the selected service; does nothing where none is selected.
    void savePreset(const Text& name);
    /// Writes all profiles to a file that the user chooses; false when that fails, or when those that were
    /// stored could not be read, so that the file would lack them. Cancelling is no failure.
    bool exportPresets() const;
    /// Merges the profiles of a file that the user chooses into the list, by their ids.
    void importPresets();
    /// Has the program start when the user logs in, or no longer.
    void toggleLoginItem();

    NetworkConfigService configService;
    AuthorizationService authService;
    NetworkPresetStore presetStore;

private:
    /// Starts a change of the service with the consent.
    using Change = std::function<QFuture<void>(const Text& serviceName, AuthorizationRef authorization)>;
    struct Action {
        Change change;
        /// None where no trial takes part in it.
        Trial trial;
        std::chrono::milliseconds settlingTime;
        bool tellsSuccess;
    };

    template <typename Source>
    void fillForm(const Source& settings, const Text& domains);
    NetworkAdapterInfo formContent() const;
    QCoro::Task<> write(NetworkAdapterInfo configuration, std::optional<Settings> named, Trial trial);
    static std::optional<AdapterInfo> serviceIn(const QList<AdapterInfo>& listed, const Text& name);
    void takeListed(const QList<AdapterInfo>& listed);
    void clearFeedback();
    void tellError(const QString& sentence, const std::optional<SettingFault>& fault = {});
    QCoro::Task<> carryOut(Action action);
    QCoro::Task<> guardTrial(Text serviceName, std::chrono::seconds time, AuthorizationRef authorization);
    QCoro::Task<> countDown();
    QCoro::Task<> scheduleFollowUpRefresh();
    QCoro::Task<> noteWaiting(std::optional<LockHolder> holder);
    QCoro::Task<> noteChange();
    QCoro::Task<> readAgain();
    bool isBusy() const { return isLoading.value() || isApplying.value(); }
    bool isEdited() const;

    Platform& m_platform;
    /// How often somebody has begun or ended to be waited for.
    int m_waits = 0;
    QSet<const QObject*> m_viewers;
    bool m_hasChanged = false;
    bool m_isReadingAgain = false;
    bool m_isCountingDown = false;
    QPropertyNotifier m_selectionChanges;
    QPropertyNotifier m_loadingEnds;
    QPropertyNotifier m_applyingEnds;
};

} // namespace ardeo
