// Host functions for the sheets of drawings.
#include "workbench/host/arguments.h"

using namespace wb;

ProError ProDrawingSheetTrfGet(ProDrawing drawing, int sheet, ProName size_name,
                               ProMatrix transform) {
  return Crossing(__func__, DrawingIn(drawing), sheet, OutText{size_name, PRO_NAME_SIZE})
      .Run([&](const Call& call, const DrawingContent& from, int number, TextPlace size) {
        if (number < 1 || number > static_cast<int>(from.sheets.size())) {
          call.Fail("the drawing has no sheet " + std::to_string(number));
        }
        size = from.sheets[static_cast<size_t>(number - 1)].size;
        if (transform == nullptr) call.Fail("null transform");
        for (int i = 0; i < 4; ++i) {
          for (int k = 0; k < 4; ++k) transform[i][k] = i == k ? 1.0 : 0.0;
        }
      });
}
