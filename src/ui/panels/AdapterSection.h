#pragma once

#include "model/MainViewModel.h"

#include <QWidget>

namespace ardeo
{

/// The adapter picker, and below it a summary of the selected adapter.
class AdapterSection final : public QWidget
{
    Q_OBJECT

public:
    explicit AdapterSection(MainViewModel& vm, QWidget* parent = nullptr);
};

/// What the picker says of an adapter.
QString pickerLabel(const AdapterInfo& adapter);
/// A link speed in words.
QString speedText(qint64 mbps);

} // namespace ardeo
