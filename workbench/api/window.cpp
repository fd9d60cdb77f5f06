// Host functions for modes, windows, the model tree, the working directory, configuration options
// and the host's file choice.
#include "workbench/host/arguments.h"

namespace wb {
namespace {

int ModeOf(const Model& model) {
  switch (model.id.kind) {
    case ModelKind::kAssembly:
      return PRO_MODE_ASSEMBLY;
    case ModelKind::kDrawing:
    case ModelKind::kFormat:
      return PRO_MODE_DRAWING;
    case ModelKind::kManufacturing:
      return PRO_MODE_MFG;
    default:
      return model.solid().sheet_metal ? PRO_MODE_PART_2 : PRO_MODE_PART_1;
  }
}

// Folders end with the separator, as the host gives them.
std::string WithSeparator(std::string folder) {
  if (!folder.empty() && folder.back() != '\\' && folder.back() != '/') folder += '\\';
  return folder;
}

// A window that is there.
struct WindowIn {
  int id;
  std::string Describe() const { return DescribeArgument(id); }
  Window& Look(const Call& call) const {
    Window* const window = call.host.session.FindWindow(id);
    if (window == nullptr) call.Fail("there is no window " + std::to_string(id));
    return *window;
  }
};

struct OptionalPathTextIn : OptionalTextIn {
  OptionalPathTextIn(const wchar_t* path, const char* path_of)
      : OptionalTextIn{{path, PRO_PATH_SIZE, path_of}} {}
};

// Asks the user for a file, to be opened or written.
ProError AskForFile(const Call& call, FileRequest request, TextPlace place) {
  request.asked_by = call.function;
  if (call.host.user == nullptr) return PRO_TK_USER_ABORT;
  const auto choice = call.host.user->ChooseFile(request);
  if (!choice) return PRO_TK_USER_ABORT;
  place = *choice;
  return PRO_TK_NO_ERROR;
}

Model* FindOfType(Session& session, const std::string& name, ProType type) {
  for (const auto& model : session.models()) {
    const bool same_type = static_cast<int>(model->id.kind) == static_cast<int>(type);
    if (same_type && EqualFolded(model->id.name, name)) return model.get();
  }
  return nullptr;
}

}  // namespace
}  // namespace wb

using namespace wb;

ProError ProModeCurrentGet(ProMode* mode) {
  return Crossing(__func__, Out(mode, "mode place")).Run([](const Call& call, ProMode& place) {
    const Model* const current = call.host.session.Current();
    const int forced = call.host.forced_mode;
    if (forced < 0 && current == nullptr) return PRO_TK_BAD_CONTEXT;
    place = static_cast<ProMode>(forced >= 0 ? forced : ModeOf(*current));
    return PRO_TK_NO_ERROR;
  });
}

ProError ProWindowCurrentGet(int* window) {
  return Crossing(__func__, Out(window, "window place")).Run([](const Call& call, int& place) {
    if (call.host.session.current_window() == kNoWindow) return PRO_TK_E_NOT_FOUND;
    place = call.host.session.current_window();
    return PRO_TK_NO_ERROR;
  });
}

ProError ProWindowCurrentSet(int window) {
  return Crossing(__func__, WindowIn{window}).Run([](const Call& call, const Window& wanted) {
    call.host.session.SetCurrentWindow(wanted.id);
  });
}

ProError ProWindowMdlGet(int window, ProMdl* model) {
  return Crossing(__func__, WindowIn{window}, Out(model, "model place"))
      .Run([](const Window& from, ProMdl& place) {
        if (from.model == nullptr) return PRO_TK_E_NOT_FOUND;
        place = from.model->handle;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProWindowActivate(int window) {
  return Crossing(__func__, WindowIn{window}).Run([](const Call& call, const Window& wanted) {
    call.host.session.ActivateWindow(wanted.id);
  });
}

ProError ProWindowRepaint(int window) {
  return Crossing(__func__, window).Run([](const Call& call, int id) {
    if (id != kAllWindows) WindowIn{id}.Look(call);
    call.host.events.Add(Repaint{id});
  });
}

ProError ProObjectwindowCreate(ProName name, ProType type, int* window) {
  return Crossing(__func__, ModelNameIn{name}, type, Out(window, "window place"))
      .Run([](const Call& call, const std::string& wanted, ProType kind, int& place) {
        Model* const model = FindOfType(call.host.session, wanted, kind);
        if (model == nullptr) return PRO_TK_E_NOT_FOUND;
        place = call.host.session.ShowInWindow(*model).id;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProWindowCurrentClose() {
  return Crossing(__func__).Run([](const Call& call) {
    Session& session = call.host.session;
    const Window* const current = session.FindWindow(session.current_window());
    if (current == nullptr || current->model == nullptr) return PRO_TK_BAD_CONTEXT;
    session.CloseWindow(current->id);
    return PRO_TK_NO_ERROR;
  });
}

ProError ProWindowDelete(int window) {
  return Crossing(__func__, WindowIn{window}).Run([](const Call& call, const Window& wanted) {
    Session& session = call.host.session;
    const bool stays = wanted.id == kBaseWindow || wanted.id == session.current_window();
    if (stays) return PRO_TK_BAD_CONTEXT;
    session.CloseWindow(wanted.id);
    return PRO_TK_NO_ERROR;
  });
}

ProError ProTreetoolRefresh(ProMdl model) {
  return Crossing(__func__, ModelIn{model}).Run([](const Call& call, const Model& shown) {
    call.host.events.Add(TreeRefresh{shown.id.Text()});
  });
}

ProError ProDirectoryCurrentGet(ProPath path) {
  return Crossing(__func__, OutText{path, PRO_PATH_SIZE})
      .Run([](const Call& call, TextPlace place) {
        place = WithSeparator(PathToUtf8(call.host.session.working_directory()));
      });
}

ProError ProDirectoryChange(ProPath path) {
  return Crossing(__func__, PathIn{path, "folder"})
      .Run([](const Call& call, const std::filesystem::path& folder) {
        return call.host.session.ChangeDirectory(folder) ? PRO_TK_NO_ERROR : PRO_TK_INVALID_DIR;
      });
}

ProError ProConfigoptGet(wchar_t* option, wchar_t* value) {
  return Crossing(__func__, TextIn{option, PRO_PATH_SIZE, "option"}, OutText{value, PRO_PATH_SIZE})
      .Run([](const Call& call, const std::string& name, TextPlace place) {
        const auto found = call.host.options.find(FoldCase(name));
        if (found == call.host.options.end() || found->second.empty()) return PRO_TK_E_NOT_FOUND;
        place = found->second.front();
        return PRO_TK_NO_ERROR;
      });
}

ProError ProConfigoptSet(wchar_t* option, wchar_t* value) {
  return Crossing(__func__, TextIn{option, PRO_PATH_SIZE, "option"},
                  TextIn{value, PRO_PATH_SIZE, "value"})
      .Run([](const Call& call, const std::string& name, const std::string& text) {
        // Those of several values are the search paths; the host has no list of them to ask.
        if (FoldCase(name) == "search_path") throw NotModelled{"adding to " + name};
        call.host.options[FoldCase(name)] = {text};
      });
}

ProError ProConfigoptArrayGet(ProName option, ProPath** values) {
  return Crossing(__func__, TextIn{option, PRO_NAME_SIZE, "option"}, Out(values, "values place"))
      .Run([](const Call& call, const std::string& name, ProPath*& place) {
        const auto found = call.host.options.find(FoldCase(name));
        if (found == call.host.options.end() || found->second.empty()) return PRO_TK_E_NOT_FOUND;
        const std::vector<std::string>& held = found->second;
        place =
            static_cast<ProPath*>(NewArray(call, static_cast<int>(held.size()), sizeof(ProPath)));
        for (size_t i = 0; i < held.size(); ++i) call.CopyText(place[i], PRO_PATH_SIZE, held[i]);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProFileOpen(wchar_t* title, wchar_t* filter, ProPath* shortcut_paths,
                     ProName* shortcut_names, wchar_t* start_folder, wchar_t* preselected,
                     ProPath chosen) {
  return Crossing(__func__, OptionalPathTextIn(title, "title"),
                  OptionalPathTextIn(filter, "filter"), DataIn{shortcut_paths},
                  DataIn{shortcut_names}, OptionalPathTextIn(start_folder, "start folder"),
                  preselected, OutText{chosen, PRO_PATH_SIZE})
      .Run([](const Call& call, const std::string& shown_title, const std::string& shown_filter,
              void*, void*, const std::string& folder, const wchar_t*, TextPlace place) {
        FileRequest request;
        request.title = shown_title;
        request.filter = shown_filter;
        request.start_folder = folder;
        return AskForFile(call, request, place);
      });
}

ProError ProFileSave(wchar_t* title, wchar_t* filter, ProPath* shortcut_paths,
                     ProName* shortcut_names, wchar_t* start_folder, wchar_t* preselected,
                     ProPath chosen) {
  return Crossing(__func__, OptionalPathTextIn(title, "title"),
                  OptionalPathTextIn(filter, "filter"), DataIn{shortcut_paths},
                  DataIn{shortcut_names}, OptionalPathTextIn(start_folder, "start folder"),
                  OptionalPathTextIn(preselected, "file name"), OutText{chosen, PRO_PATH_SIZE})
      .Run([](const Call& call, const std::string& shown_title, const std::string& shown_filter,
              void*, void*, const std::string& folder, const std::string& name, TextPlace place) {
        FileRequest request;
        request.title = shown_title;
        request.filter = shown_filter;
        request.start_folder = folder;
        request.offered_name = name;
        return AskForFile(call, request, place);
      });
}

ProError ProDirectoryChoose(wchar_t* title, ProPath* shortcut_paths, ProName* shortcut_names,
                            wchar_t* start_folder, ProPath chosen) {
  return Crossing(__func__, OptionalPathTextIn(title, "title"), DataIn{shortcut_paths},
                  DataIn{shortcut_names}, OptionalPathTextIn(start_folder, "start folder"),
                  OutText{chosen, PRO_PATH_SIZE})
      .Run([](const Call& call, const std::string& shown_title, void*, void*,
              const std::string& folder, TextPlace place) {
        FileRequest request;
        request.asked_by = call.function;
        request.title = shown_title;
        request.start_folder = folder;
        if (call.host.user == nullptr) return PRO_TK_USER_ABORT;
        const auto choice = call.host.user->ChooseFile(request);
        if (!choice) return PRO_TK_USER_ABORT;
        place = call.host.habits.chosen_folder_has_separator ? WithSeparator(*choice) : *choice;
        return PRO_TK_NO_ERROR;
      });
}

ProError ProToolkitApplTextPathGet(ProPath path) {
  return Crossing(__func__, OutText{path, PRO_PATH_SIZE})
      .Run([](const Call& call, TextPlace place) { place = PathToUtf8(call.host.install_folder); });
}
