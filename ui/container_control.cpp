#include "ui/container_control.h"

namespace tavrik {
namespace {

constexpr OperationRow kOperations[] = {
    operation<pick<ContainerControl::Within<Window>>(&ContainerControl::EmbedWithin), EmbedWithin>("EmbedWithin"),
    operation<pick<ContainerControl::Within<RectControl>>(&ContainerControl::EmbedWithin), EmbedWithinControl>(
        "EmbedWithin"),
    operation<&ContainerControl::EmbedWithinPanel, EmbedWithinPanel>("EmbedWithinPanel"),
    overrides<ContainerControl, &Window::__DependencyList, no_effect>("__DependencyList").not_public(),
    method<&ContainerControl::Show, RuntimeShowWindow>("Show"),
    method<&ContainerControl::ShowWithin, RuntimeShowWithinWindow>("ShowWithin"),
    method<&ContainerControl::ShowModalWithin, RuntimeShowModalWithinWindow>("ShowModalWithin"),
    method<&ContainerControl::Hide, RuntimeHideWindow>("Hide"),
    method<&ContainerControl::Maximize, WindowMaximize>("Maximize"),
    method<&ContainerControl::Minimize, WindowMinimize>("Minimize"),
    method<&ContainerControl::Restore, WindowRestore>("Restore"),
    method<&ContainerControl::DrawInto, formDrawInto>("DrawInto"),
    method<&ContainerControl::UpdateNow, WindowForceUpdateFrontBuffer>("UpdateNow"),
};

constexpr PropertyRow kProperties[] = {
    write_only<&ContainerControl::set_InitialParent>("InitialParent"),
    property<&ContainerControl::TabPanelIndex, &ContainerControl::set_TabPanelIndex>("TabPanelIndex"),
    property<&ContainerControl::TabIndex, &ContainerControl::set_TabIndex>("TabIndex"),
    property<&ContainerControl::Parent, &ContainerControl::set_Parent>("Parent"),
    property<&ContainerControl::Window, ignored>("Window"),
    property<&ContainerControl::_Control, ignored>("_Control"),
    property<&ContainerControl::LockLeft, &ContainerControl::set_LockLeft>("LockLeft"),
    property<&ContainerControl::LockTop, &ContainerControl::set_LockTop>("LockTop"),
    property<&ContainerControl::LockRight, &ContainerControl::set_LockRight>("LockRight"),
    property<&ContainerControl::LockBottom, &ContainerControl::set_LockBottom>("LockBottom"),
    property<&ContainerControl::Enabled, &ContainerControl::set_Enabled>("Enabled"),
    property<&ContainerControl::AutoDeactivate, &ContainerControl::set_AutoDeactivate>("AutoDeactivate"),
    property<&ContainerControl::AcceptFocus, &ContainerControl::set_AcceptFocus>("AcceptFocus"),
    property<&ContainerControl::AcceptTabs, &ContainerControl::set_AcceptTabs>("AcceptTabs"),
    property<&ContainerControl::UseFocusRing, &ContainerControl::set_UseFocusRing>("UseFocusRing"),
    property<&ContainerControl::EraseBackground, &ContainerControl::set_EraseBackground>("EraseBackground"),
    property<&ContainerControl::HelpTag, &ContainerControl::set_HelpTag>("HelpTag"),
    property<&ContainerControl::DisabledBalloonHelp, &ContainerControl::set_DisabledBalloonHelp>("DisabledBalloonHelp"),
};

constexpr EventRow kEvents[] = {
    event("GotFocus", ContainerControl::Events::GotFocus),
    event("LostFocus", ContainerControl::Events::LostFocus),
};

}  // namespace

const ClassDefinition& ContainerControl::definition() {
    static constexpr ClassDefinition kDefinition = define<ContainerControl>({
        .operations = kOperations,
        .properties = kProperties,
        .events = kEvents,
    });
    return kDefinition;
}

}  // namespace tavrik
