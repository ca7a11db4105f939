#include "ui/message_dialog.h"

namespace tavrik {
namespace {

constexpr FieldRow kButtonImp = field<&MessageDialogButton::_mImp>("_mImp");

constexpr PropertyRow kButtonProperties[] = {
    property<&MessageDialogButton::Visible, &MessageDialogButton::set_Visible>("Visible"),
    property<&MessageDialogButton::Default, &MessageDialogButton::set_Default>("Default"),
    property<&MessageDialogButton::Cancel, &MessageDialogButton::set_Cancel>("Cancel"),
    property<&MessageDialogButton::Caption, &MessageDialogButton::set_Caption>("Caption"),
    among_properties(kButtonImp),
};

constexpr OperationRow kOperations[] = {
    operation<&MessageDialog::ShowModal, MessageDialogShowModal>("ShowModal"),
    operation<&MessageDialog::ShowModalWithin, MessageDialogShowModalWithin>("ShowModalWithin"),
    operation<&MessageDialog::__DependencyList, no_effect>("__DependencyList").not_public(),
};

constexpr FieldRow kImp = field<&MessageDialog::_mImp>("_mImp");

constexpr PropertyRow kProperties[] = {
    property<&MessageDialog::Message, &MessageDialog::set_Message>("Message"),
    property<&MessageDialog::Explanation, &MessageDialog::set_Explanation>("Explanation"),
    property<&MessageDialog::Title, &MessageDialog::set_Title>("Title"),
    property<&MessageDialog::Icon, &MessageDialog::set_Icon>("Icon"),
    property<&MessageDialog::ActionButton, ignored>("ActionButton"),
    property<&MessageDialog::CancelButton, ignored>("CancelButton"),
    property<&MessageDialog::AlternateActionButton, ignored>("AlternateActionButton"),
    among_properties(kImp),
};

}  // namespace

const ClassDefinition& MessageDialogButton::definition() {
    static constexpr ClassDefinition kDefinition = define<MessageDialogButton>({
        .init = init_forwards_to<MessageDialogButton, no_effect>,
        .exit = exit_forwards_to<MessageDialogButton, no_effect>,
        .properties = kButtonProperties,
    });
    return kDefinition;
}

const ClassDefinition& _ActionButton::definition() {
    static constexpr ClassDefinition kDefinition = define<_ActionButton>({});
    return kDefinition;
}

const ClassDefinition& _CancelButton::definition() {
    static constexpr ClassDefinition kDefinition = define<_CancelButton>({});
    return kDefinition;
}

const ClassDefinition& _AlternateActionButton::definition() {
    static constexpr ClassDefinition kDefinition = define<_AlternateActionButton>({});
    return kDefinition;
}

const ClassDefinition& MessageDialog::definition() {
    static constexpr ClassDefinition kDefinition = define<MessageDialog>({
        .init = init_forwards_to<MessageDialog, MessageDialogInitializer>,
        .exit = exit_forwards_to<MessageDialog, MessageDialogFinalizer>,
        .operations = kOperations,
        .properties = kProperties,
    });
    return kDefinition;
}

}  // namespace tavrik
