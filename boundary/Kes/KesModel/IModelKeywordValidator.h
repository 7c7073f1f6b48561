// The keyword validators of the parts of a simulation model.
#pragma once

#include "Kes/KesModel/IKeywordValidator.h"
#include "Visibility.h"

namespace Orv::Kes::KesModel {

/// Each operation may give null. What is given belongs to this object.
class FLUIDBENCH_BOUNDARY_API IModelKeywordValidator {
public:
    /// The one for fluids, and three for parts that the I/O library doesn't read.
    virtual const IKeywordValidator* getKeywordValidator1() const = 0;
    virtual const IKeywordValidator* getKeywordValidator2() const = 0;
    virtual const IFluidsKeywordValidator* getFluidsKeywordValidator() const = 0;
    virtual const IKeywordValidator* getKeywordValidator4() const = 0;
    virtual ~IModelKeywordValidator() = default;

protected:
    IModelKeywordValidator() = default;
    IModelKeywordValidator(const IModelKeywordValidator&) = default;
    IModelKeywordValidator& operator=(const IModelKeywordValidator&) = default;
};

} // namespace Orv::Kes::KesModel
