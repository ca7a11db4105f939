#include "data/folder_item_dialog.h"

namespace tavrik {
namespace {

constexpr OperationRow kOperations[] = {
    operation<&FolderItemDialog::ShowModal, FolderItemDialogShowModal>("ShowModal"),
    operation<&FolderItemDialog::ShowModalWithin, FolderItemDialogShowWithin>("ShowModalWithin"),
    operation<&FolderItemDialog::__DependencyList, no_effect>("__DependencyList").not_public(),
};

constexpr FieldRow kImp = field<&FolderItemDialog::_mImp>("_mImp");

constexpr PropertyRow kProperties[] = {
    property<&FolderItemDialog::Top, &FolderItemDialog::set_Top>("Top"),
    property<&FolderItemDialog::Left, &FolderItemDialog::set_Left>("Left"),
    property<&FolderItemDialog::InitialDirectory, &FolderItemDialog::set_InitialDirectory>("InitialDirectory"),
    property<&FolderItemDialog::Result, ignored>("Result"),
    property<&FolderItemDialog::Filter, &FolderItemDialog::set_Filter>("Filter"),
    property<&FolderItemDialog::Title, &FolderItemDialog::set_Title>("Title"),
    property<&FolderItemDialog::ActionButtonCaption, &FolderItemDialog::set_ActionButtonCaption>("ActionButtonCaption"),
    property<&FolderItemDialog::CancelButtonCaption, &FolderItemDialog::set_CancelButtonCaption>("CancelButtonCaption"),
    property<&FolderItemDialog::SuggestedFileName, &FolderItemDialog::set_SuggestedFileName>("SuggestedFileName"),
    property<&FolderItemDialog::PromptText, &FolderItemDialog::set_PromptText>("PromptText"),
    among_properties(kImp),
};

}  // namespace

const ClassDefinition& FolderItemDialog::definition() {
    static constexpr ClassDefinition kDefinition = define<FolderItemDialog>({
        .init = init_forwards_to<FolderItemDialog, FolderItemDialogInitializer>,
        .exit = exit_forwards_to<FolderItemDialog, FolderItemDialogFinalizer>,
        .operations = kOperations,
        .properties = kProperties,
    });
    return kDefinition;
}

}  // namespace tavrik
