// The macro of QmClearAllColor, byte for byte as the host's users have it.
#pragma once

namespace qm {

// Opens the gallery of appearances, picks its entry that clears them all, and answers the host's
// question with yes. Deliberately with two blanks and with none where they stand so.
inline constexpr wchar_t kClearAllMacro[] =
    L"~ Select `main_dlg_cur` `ProCmdViewGallery.view`; "
    L"~ Select `main_dlg_cur` `ProCmdViewGallery_layoutph.palette_holder.clearAppearance`; "
    L"~ Close `main_dlg_cur`  `ProCmdViewGallery_layoutph.palette_holder.clearAppearance`; "
    L"~ Activate `main_dlg_cur` `clearAllAppearance`;"
    L"~ Close `main_dlg_cur`  `ProCmdViewGallery_layoutph.palette_holder.clearAppearance`; "
    L"~ Close `main_dlg_cur` `ProCmdViewGallery.view`; "
    L"~ FocusIn `UI Message Dialog` `yes`;"
    L"~ Activate `UI Message Dialog` `yes`;";

}  // namespace qm
