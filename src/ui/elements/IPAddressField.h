#pragma once

#include "backend/Text.h"
#include "model/Observed.h"

#include <QLineEdit>
#include <QWidget>

#include <array>
#include <optional>

namespace ardeo
{

/// A four-part editor for a dotted IPv4 address, bound to a text. While the user types, the text holds the
/// parts as they are, joined with dots; when the text changes elsewhere, it is split into parts again.
class IPAddressField final : public QWidget
{
    Q_OBJECT

public:
    /// The placeholder gives each part its hint. The label names the field for assistive technology.
    IPAddressField(Observed<Text>& value, const QString& placeholder, const QString& label,
                   QWidget* parent = nullptr);

    /// The hint of a part, 0 to 3.
    QString partPlaceholder(int i) const;
    /// Marks the value as refused for that reason, or as fine.
    void setFault(const std::optional<QString>& reason);
    QLineEdit* octet(int i) const { return m_octets.at(static_cast<size_t>(i)); }

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Acts when the assignment under way is over, unless something waits for that already.
    template <typename Action>
    void afterAssignment(Action action);
    void syncPartsFromValue(bool observed);
    void setPart(int i, const QString& text);
    void handlePartChange(int i, const QString& text);
    void handleValueChange(const QString& newValue);
    QString joined() const;
    std::optional<int> focused() const;

    Observed<Text>& m_value;
    QString m_placeholder;
    std::array<QString, 4> parts;
    std::array<QLineEdit*, 4> m_octets{};
    QPropertyNotifier m_valueNotifier;
    bool m_changePending = false;
    bool m_isFaulty = false;
};

} // namespace ardeo
