// Host functions that write files of other programs: texts that stand for them.
#include <fstream>

#include "workbench/host/arguments.h"

using namespace wb;

ProError Pro2dExport(int type, ProPath file, ProMdl drawing, Pro2dExportdata data) {
  return Crossing(__func__, type, PathIn{file, "file"}, DrawingIn(drawing),
                  DataIn{static_cast<void*>(data)})
      .Run([&](const Call& call, int kind, std::filesystem::path path, const DrawingContent& from,
               const void* options) {
        if (kind != PRO_DWG_FILE) throw NotModelled{"files of type " + std::to_string(kind)};
        if (options != nullptr) throw NotModelled{"export data"};
        const Model& model = call.ModelAt(drawing);
        if (call.host.session.FindWindowOf(model) == nullptr) return PRO_TK_NOT_DISPLAYED;
        if (!path.has_extension()) path += ".dwg";
        path = call.host.session.working_directory() / path;
        if (call.host.session.IsReadOnly(path.parent_path())) return PRO_TK_CANT_WRITE;
        std::ofstream out(path, std::ios::binary);
        out << "This file stands for the DWG file of sheet " << from.current_sheet << " of "
            << model.id.Text() << ".\n";
        out.flush();
        return out ? PRO_TK_NO_ERROR : PRO_TK_CANT_WRITE;
      });
}
