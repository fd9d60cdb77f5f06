// Registration of commands, menus, popups and notifications, as the host takes and refuses it.
#include "workbench/host/commands.h"

#include "tests/workbench/host/host_fixture.h"
#include "workbench/base/text.h"
#include "workbench/host/host_types.h"
#include "workbench/plugin/plugin.h"
#include "workbench/plugin/popups.h"

namespace wb {
namespace {

int Act(uiCmdCmdId, uiCmdValue*, void*) {
  return 5;
}
uiCmdAccessState Available(uiCmdAccessMode) {
  return ACCESS_AVAILABLE;
}
uiCmdAccessState Greyed(uiCmdAccessMode) {
  return ACCESS_UNAVAILABLE;
}

wchar_t menu_file[] = L"menu.txt";
wchar_t missing_file[] = L"nowhere.txt";

uiCmdCmdId Add(const char* name, uiCmdAccessFn access = &Available) {
  uiCmdCmdId id = nullptr;
  ProCmdActionAdd(name, &Act, 2, access, PRO_B_FALSE, PRO_B_FALSE, &id);
  return id;
}

ProError AddButton(const char* menu, const char* name) {
  return ProMenubarmenuPushbuttonAdd(menu, name, "Label", "Label_Help", nullptr, PRO_B_TRUE,
                                     Add("Command"), menu_file);
}

class CommandsTest : public HostFixture {};

TEST_F(CommandsTest, OnlyAnAvailableCommandRuns) {
  Add("Command");
  EXPECT_EQ(RunCommand("Command").status, 5);
  Add("Command", &Greyed);
  EXPECT_FALSE(RunCommand("Command").available);
  EXPECT_EQ(RunCommand("Command").status, 0);
  EXPECT_FALSE(RunCommand("Unknown").known);
}

TEST_F(CommandsTest, AMenuTakesItsPlaceBesideTheNeighbour) {
  EXPECT_EQ(ProMenubarMenuAdd("Menu", "Label", "Help", PRO_B_TRUE, menu_file), PRO_TK_NO_ERROR);
  std::string after_help;
  for (size_t i = 1; i < host_.commands.menus.size(); ++i) {
    if (host_.commands.menus[i - 1].name == "Help") after_help = host_.commands.menus[i].name;
  }
  EXPECT_EQ(after_help, "Menu");
}

TEST_F(CommandsTest, WhatTheHostRefusesWithAStatusChangesNothing) {
  AddButton("Help", "Button");
  const uiCmdCmdId id = Add("Command");
  EXPECT_EQ(AddButton("Help", "Button"), PRO_TK_E_FOUND);
  EXPECT_EQ(AddButton("Nowhere", "b"), PRO_TK_E_NOT_FOUND);
  EXPECT_EQ(ProMenubarMenuAdd("Help", "Label", "File", PRO_B_TRUE, menu_file), PRO_TK_E_FOUND);
  EXPECT_EQ(ProMenubarMenuAdd("M", "Unknown", "Help", PRO_B_TRUE, menu_file), PRO_TK_MSG_NOT_FOUND);
  EXPECT_EQ(ProCmdDesignate(id, "Label", "Label_Help", "Label", missing_file),
            PRO_TK_MSG_NOT_FOUND);
  EXPECT_EQ(ProCmdIconSet(id, "no_icon.png"), PRO_TK_E_NOT_FOUND);
  EXPECT_EQ(host_.commands.FindMenu("Help")->buttons.size(), 1u);
  EXPECT_EQ(host_.commands.FindMenu("M"), nullptr);
  EXPECT_FALSE(host_.commands.Find("Command")->designated);
  EXPECT_EQ(Breaches(), Lines{});
  EXPECT_EQ(host_.events.All<MissingText>().size(), 2u);
}

uiCmdAccessState Offered(uiCmdCmdId, ProAppData, ProSelection*) {
  return ACCESS_AVAILABLE;
}

ProPopupMenuId built_popup = 0;

ProError BuildPopup(char* name) {
  return ProPopupmenuIdGet(name, &built_popup);
}

TEST_F(CommandsTest, APopupTakesButtonsOnlyWhileItIsBeingCreated) {
  ProNotificationSet(kNotifyPopupCreate,
                     reinterpret_cast<ProFunction>(reinterpret_cast<void (*)()>(&BuildPopup)));
  FirePopup("Sel Obj Menu");
  wchar_t label[] = L"label";
  EXPECT_EQ(ProPopupmenuButtonAdd(built_popup, -1, "late", label, label, Add("Command"), &Offered,
                                  nullptr),
            PRO_TK_BAD_INPUTS);
  EXPECT_EQ(Breaches(), (Lines{"plug-in misused ProPopupmenuButtonAdd: popup \"Sel Obj Menu\" is "
                               "changed while it is not being created"}));
}

}  // namespace
}  // namespace wb
