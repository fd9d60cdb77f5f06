// What the plug-in's menu and its popup entries have in common.
#pragma once

namespace qm {

// Message file with the labels and helps of all commands.
inline constexpr wchar_t kMenuFile[] = L"qmMenu.txt";
inline constexpr int kMenuCommandPriority = 2;

}  // namespace qm
