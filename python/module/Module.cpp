// The module _core: what the package's Python calls. It knows no data frame; numbers go in and out
// as numpy arrays, and what an operation says beside its result comes back with it.
#include "Families.h"
#include "FluidBench/Common/Exceptions.h"
#include "Logging.h"
#include "Values.h"

#include <exception>
#include <stdexcept>

namespace py = pybind11;
using FluidBenchPython::SentenceToPython;

namespace {

// What the toolbox or the library refuses is one exception in Python.
void TranslateRefusals(std::exception_ptr exception) {
    const auto raise = [](const std::exception& refusal) {
        const py::object type =
            py::module_::import("fluidbench_io._errors").attr("FluidBenchError");
        PyErr_SetObject(type.ptr(), SentenceToPython(refusal.what()).ptr());
    };
    try {
        std::rethrow_exception(std::move(exception));
    } catch (const Orv::FluidBench::Common::Exception& refusal) {
        raise(refusal);
    } catch (const std::invalid_argument& refusal) {
        raise(refusal);
    } catch (const std::out_of_range& refusal) {
        raise(refusal);
    }
}

} // namespace

PYBIND11_MODULE(_core, module) {
    using namespace FluidBenchPython;
    py::register_local_exception_translator(TranslateRefusals);
    module.def("start_logging", StartLogging, py::arg("handler"));
    module.def("stop_logging", StopLogging);
    AddBlackOil(module);
    AddCompositions(module);
    AddDecks(module);
    AddDepthTables(module);
    AddDfa(module);
    AddEnvelopes(module);

    AddKValues(module);
    AddMfl(module);
    AddThermal(module);
}
