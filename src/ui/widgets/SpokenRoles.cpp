// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/SpokenRoles.h"

#include <QAccessibleWidget>
#include <QVariant>

namespace sprout {

namespace {

constexpr const char* kRoleProperty = "spokenRole";
constexpr const char* kChosenProperty = "spokenChosen";

class ChoiceAccessible : public QAccessibleWidget {
public:
    explicit ChoiceAccessible(QAbstractButton& choice) : QAccessibleWidget(&choice, QAccessible::RadioButton) {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = object()->property(kChosenProperty).toBool();
        return state;
    }

    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }

    void doAction(const QString& action) override
    {
        if (action == pressAction())
            qobject_cast<QAbstractButton*>(object())->click();
        else
            QAccessibleWidget::doAction(action);
    }
};

QAccessibleInterface* MakeSpoken(const QString& /*className*/, QObject* object)
{
    auto* widget = qobject_cast<QWidget*>(object);
    if (!widget)
        return nullptr;
    auto* button = qobject_cast<QAbstractButton*>(object);
    if (button && button->property(kChosenProperty).isValid())
        return new ChoiceAccessible(*button);
    const QVariant role = widget->property(kRoleProperty);
    return role.isValid() ? new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt())) : nullptr;
}

/// Qt keeps the first interface it creates, and a running screen reader requests one as soon as there is a name.
void MakeAnew(QWidget& widget)
{
    if (QAccessibleInterface* kept = QAccessible::queryAccessibleInterface(&widget))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(kept));
}

} // namespace

void SetSpokenRole(QWidget& widget, QAccessible::Role role)
{
    QAccessible::installFactory(MakeSpoken); // installing it again has no effect
    widget.setProperty(kRoleProperty, static_cast<int>(role));
    MakeAnew(widget);
}

void SetSpokenChoice(QAbstractButton& button, bool chosen)
{
    QAccessible::installFactory(MakeSpoken);
    const QVariant before = button.property(kChosenProperty);
    button.setProperty(kChosenProperty, chosen);
    if (!before.isValid())
        return MakeAnew(button);
    if (before.toBool() == chosen)
        return;
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(&button, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace sprout
