#pragma once

#include "platform/AdvisoryLock.h"

#include <nlohmann/json.hpp>

#include <chrono>

namespace ardeo
{

using Json = nlohmann::ordered_json;

/// The file that is the simulated machine: its services with their saved settings and their live state.
class SimulatedMachine
{
public:
    explicit SimulatedMachine(QString file);

    /// Writes a machine with a few services where there is no file yet.
    void seed() const;
    /// The machine as it is now; none when the file cannot be read or is not a machine.
    std::optional<Json> read() const;
    /// The lock that keeps other writers out; not taken yet.
    AdvisoryLock lock(const WaitingObserver& waiting) const;
    /// The machine as it is now, after what nobody has confirmed in time has been taken back, which takes the
    /// lock; none as above.
    std::optional<Json> readLocked(std::chrono::nanoseconds now) const;
    /// Replaces the whole file, or leaves it as it was and returns false.
    bool write(const Json& machine) const;

    const QString& file() const { return m_file; }

private:
    QString m_file;
};

/// The member of an object; null when there is none, or when it is no object.
const Json* member(const Json& object, const char* key);
std::optional<QString> textMember(const Json& object, const char* key);
bool flagMember(const Json& object, const char* key, bool otherwise);

/// A value of the file as the system configuration hands it out, each kind as it is.
QVariant valueFromJson(const Json& json);
Json jsonFromDictionary(const Dictionary& dictionary);

/// Makes the live state of a service follow its saved settings, as a machine would: DHCP takes the next lease
/// of its network unless it holds one and no fresh one is asked for, manual settings are what they say, and
/// without a link or when disabled there is nothing.
void bringUpToDate(Json& service, bool freshLease);

/// Has the service, which was as it is in before, become that again unless it is confirmed within the time.
void putOnTrial(Json& service, Json before, std::chrono::nanoseconds now, std::chrono::seconds time);
/// Until when the service's trial can be confirmed, in continuous time; none where it is on none.
std::optional<std::chrono::milliseconds> confirmationDeadline(const Json& service);
/// Ends the service's trial: it stays as it is, or becomes what it was.
void endTrial(Json& service, bool keep);
/// Takes back what nobody has confirmed in time; whether there was any.
bool takeBackOverdue(Json& machine, std::chrono::nanoseconds now);

} // namespace ardeo
