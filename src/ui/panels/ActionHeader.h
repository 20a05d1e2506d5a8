#pragma once

#include "model/MainViewModel.h"

#include <QWidget>

namespace ardeo
{

/// The row at the top of the right panel, with the buttons that read everything anew and that apply the form.
class ActionHeader final : public QWidget
{
    Q_OBJECT

public:
    explicit ActionHeader(MainViewModel& vm, QWidget* parent = nullptr);
};

} // namespace ardeo
