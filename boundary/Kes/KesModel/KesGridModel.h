// The simulator's grid. Opaque to the I/O library, which always passes null.
#pragma once

namespace Orv::Kes::KesModel {

class KesGridModel;

} // namespace Orv::Kes::KesModel
