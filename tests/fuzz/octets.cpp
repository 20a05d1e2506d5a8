// Keys, pastes and assignments in any order: each octet stays one, and the bound text follows.

#include "fuzz/Fuzzing.h"
#include "ui/IPAddressField.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>

using namespace ardeo;

int LLVMFuzzerTestOneInput(const uchar* data, size_t size)
{
    static int argumentCount = 1;
    static std::array<char*, 2> arguments{const_cast<char*>("octets"), nullptr};
    static const bool offscreen = qputenv("QT_QPA_PLATFORM", "offscreen");
    static const auto* application = new QApplication(argumentCount, arguments.data());
    promise(offscreen && application);
    Observed<Text> value;
    IPAddressField field(value, QStringLiteral("192.168.1.1"), QStringLiteral("IP Address:"));
    Invention invention(data, size);
    const auto press = [&field](int key, Qt::KeyboardModifiers modifiers, const QString& text) {
        QWidget* target = field.focusWidget() ? field.focusWidget() : field.octet(0);
        QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
        QCoreApplication::sendEvent(target, &event);
    };
    static constexpr std::array keys{Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Left, Qt::Key_Right,
                                     Qt::Key_Home,      Qt::Key_End,    Qt::Key_Tab,  Qt::Key_Backtab};
    while (!invention.atEnd()) {
        switch (invention.number(6)) {
        case 0:
            field.octet(invention.number(4))->setFocus();
            break;
        case 1:
            press(keys.at(static_cast<size_t>(invention.number(8))), {}, {});
            break;
        case 2:
            QGuiApplication::clipboard()->setText(invention.text());
            press(Qt::Key_V, Qt::ControlModifier, {});
            break;
        case 3:
            press(Qt::Key_Z, Qt::ControlModifier, {});
            break;
        case 4:
            value = invention.text();
            break;
        default:
            press(0, {}, QString(QChar(u'0' + invention.number(10))));
        }
        QCoreApplication::processEvents();
        for (int i = 0; i < 4; ++i) {
            const QString part = field.currentParts().at(static_cast<size_t>(i));
            const QList<uint> digits = part.toUcs4();
            promise(digits.size() <= 3 &&
                    std::ranges::all_of(digits, [](uint digit) { return QChar::isNumber(digit); }) &&
                    part.toInt() <= 255);
            promise(field.octet(i)->text() == part && value.value().string().split(u'.').value(i) == part);
        }
    }
    return 0;
}
