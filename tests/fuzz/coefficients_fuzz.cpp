// qvdata.dat of any bytes: whatever is taken for coefficients, states are numbers or there are
// none.
#include <cmath>

#include "fuzz/fuzz_folder.h"
#include "kernel/state_solver.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zandrell;
    static fuzz::Folder folder;
    folder.Write("qvdata.dat", fuzz::Bytes(data, size));
    StateSolver solver(folder.Files());
    for (const double t : {-50.0, 0.0, 25.0, 99.0, 800.0}) {
        if (!solver.Evaluate(0.5, t, 1.013)) continue;
        for (const double number :
             {solver.ZustandX, solver.ZustandH, solver.ZustandHLuft, solver.ZustandPLuft,
              solver.ZustandPDampf, solver.ZustandDichte, solver.ZustandDichteTrocken}) {
            fuzz::Require(std::isfinite(number));
        }
    }
    return 0;
}
