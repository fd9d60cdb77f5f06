// Host functions for modes, windows, the model tree, the working directory, configuration options
// and the host's file choice.
#include "workbench/host/loans.h"

namespace wb {
namespace {

int ModeOf(const Model& model) {
  switch (model.id.kind) {
    case ModelKind::kAssembly:
      return PRO_MODE_ASSEMBLY;
    case ModelKind::kDrawing:
      return PRO_MODE_DRAWING;
    case ModelKind::kManufacturing:
      return PRO_MODE_MFG;
    default:
      return model.sheet_metal ? PRO_MODE_PART_2 : PRO_MODE_PART_1;
  }
}

// Folders end with the separator, as the host gives them.
std::string WithSeparator(std::string folder) {
  if (!folder.empty() && folder.back() != '\\' && folder.back() != '/') folder += '\\';
  return folder;
}

std::string OptionalText(const Call& call, const wchar_t* text, const char* what) {
  return text == nullptr ? "" : call.Text(text, PRO_PATH_SIZE, what);
}

}  // namespace

}  // namespace wb

using namespace wb;

ProError ProModeCurrentGet(ProMode* mode) {
  return Crossing("ProModeCurrentGet", Out(mode)).Run([&](Call& call) {
    ProMode& place = call.Place(mode, "mode place");
    const Model* const current = call.host.session.Current();
    if (call.host.forced_mode < 0 && current == nullptr) return PRO_TK_BAD_CONTEXT;
    place =
        static_cast<ProMode>(call.host.forced_mode >= 0 ? call.host.forced_mode : ModeOf(*current));
    return PRO_TK_NO_ERROR;
  });
}

ProError ProWindowCurrentGet(int* window) {
  return Crossing("ProWindowCurrentGet", Out(window)).Run([&](Call& call) {
    int& place = call.Place(window, "window place");
    if (call.host.session.current_window() == 0) return PRO_TK_E_NOT_FOUND;
    place = call.host.session.current_window();
    return PRO_TK_NO_ERROR;
  });
}

ProError ProWindowActivate(int window) {
  return Crossing("ProWindowActivate", window).Run([&](Call& call) {
    if (call.host.session.FindWindow(window) == nullptr) {
      call.Fail("there is no window " + std::to_string(window));
    }
    call.host.session.ActivateWindow(window);
    return PRO_TK_NO_ERROR;
  });
}

ProError ProWindowRepaint(int window) {
  return Crossing("ProWindowRepaint", window).Run([&](Call& call) {
    if (window != kAllWindows && call.host.session.FindWindow(window) == nullptr) {
      call.Fail("there is no window " + std::to_string(window));
    }
    call.host.repaints.push_back("repaint " + std::to_string(window));
    return PRO_TK_NO_ERROR;
  });
}

ProError ProObjectwindowCreate(ProName name, ProType type, int* window) {
  return Crossing("ProObjectwindowCreate", name, type, Out(window)).Run([&](Call& call) {
    const std::string text = call.ModelNameText(name);
    int& place = call.Place(window, "window place");
    for (const auto& model : call.host.session.models()) {
      if (static_cast<int>(model->id.kind) == static_cast<int>(type) &&
          EqualFolded(model->id.name, text)) {
        place = call.host.session.ShowInWindow(*model).id;
        return PRO_TK_NO_ERROR;
      }
    }
    return PRO_TK_E_NOT_FOUND;
  });
}

ProError ProTreetoolRefresh(ProMdl model) {
  return Crossing("ProTreetoolRefresh", model).Run([&](Call& call) {
    call.host.repaints.push_back("tree " + call.ModelAt(model).id.Text());
    return PRO_TK_NO_ERROR;
  });
}

ProError ProDirectoryCurrentGet(ProPath path) {
  return Crossing("ProDirectoryCurrentGet", OutText(path, PRO_PATH_SIZE)).Run([&](Call& call) {
    call.CopyText(path, PRO_PATH_SIZE,
                  WithSeparator(PathToUtf8(call.host.session.working_directory())));
    return PRO_TK_NO_ERROR;
  });
}

ProError ProDirectoryChange(ProPath path) {
  return Crossing("ProDirectoryChange", path).Run([&](Call& call) {
    const std::filesystem::path folder = call.Path(path, "folder");
    return call.host.session.ChangeDirectory(folder) ? PRO_TK_NO_ERROR : PRO_TK_INVALID_DIR;
  });
}

ProError ProConfigoptArrayGet(ProName option, ProPath** values) {
  return Crossing("ProConfigoptArrayGet", option, Out(values)).Run([&](Call& call) {
    const std::string name = FoldCase(call.Text(option, PRO_NAME_SIZE, "option"));
    ProPath*& place = call.Place(values, "values place");
    const auto found = call.host.options.find(name);
    if (found == call.host.options.end() || found->second.empty()) return PRO_TK_E_NOT_FOUND;
    place = static_cast<ProPath*>(
        NewArray(call, static_cast<int>(found->second.size()), sizeof(ProPath)));
    for (size_t i = 0; i < found->second.size(); ++i) {
      call.CopyText(place[i], PRO_PATH_SIZE, found->second[i]);
    }
    return PRO_TK_NO_ERROR;
  });
}

ProError ProFileOpen(wchar_t* title, wchar_t* filter, ProPath* shortcut_paths,
                     ProName* shortcut_names, wchar_t* start_folder, wchar_t* preselected,
                     ProPath chosen) {
  return Crossing("ProFileOpen", title, filter, static_cast<const void*>(shortcut_paths),
                  static_cast<const void*>(shortcut_names), start_folder, preselected,
                  OutText(chosen, PRO_PATH_SIZE))
      .Run([&](Call& call) {
        FileRequest request;
        request.asked_by = "ProFileOpen";
        request.title = OptionalText(call, title, "title");
        request.filter = OptionalText(call, filter, "filter");
        request.start_folder = OptionalText(call, start_folder, "start folder");
        if (call.host.user == nullptr) return PRO_TK_USER_ABORT;
        const auto choice = call.host.user->ChooseFile(request);
        if (!choice) return PRO_TK_USER_ABORT;
        call.CopyText(chosen, PRO_PATH_SIZE, *choice);
        return PRO_TK_NO_ERROR;
      });
}

ProError ProToolkitApplTextPathGet(ProPath path) {
  return Crossing("ProToolkitApplTextPathGet", OutText(path, PRO_PATH_SIZE)).Run([&](Call& call) {
    call.CopyText(path, PRO_PATH_SIZE, PathToUtf8(call.host.install_folder));
    return PRO_TK_NO_ERROR;
  });
}
