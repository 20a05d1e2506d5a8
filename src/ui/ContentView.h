#pragma once

#include "model/MainViewModel.h"

#include <QWidget>

namespace ardeo
{

/// The main window's content: the sidebar and the detail area. Each time it comes into view anew, the model
/// lists the services.
class ContentView final : public QWidget
{
    Q_OBJECT

public:
    ContentView(MainViewModel& vm, Clock& clock, QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;

private:
    MainViewModel& vm;
};

} // namespace ardeo
