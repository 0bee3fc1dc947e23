#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "Core/Circuit/Circuit.h"
#include "Core/Components/Component.h"
#include "Core/Components/Memory.h"
#include "Core/Values/Value.h"

namespace tarnsim {

/// Puts a byte of an image into a memory. False if the memory has no such address: the rest of the file is refused
/// then.
using StoreByte = std::function<bool(std::uint32_t address, const Value& byte)>;

/// Loads the images that the parameters of a memory name: first `cbmfile`, whose first two bytes are the address, low
/// byte first, then `rawfile`, which goes to `rawaddress`, 0 by default. `className` is what messages call the memory.
///
/// A file is looked for beside the file of the circuit `owner` that the memory stands in, and if it isn't there, beside
/// the files in which this circuit and the one around it were read, in this order.
///
/// What was loaded is reported on the standard output. A file that can't be read, or that `store` refuses to go on
/// with, is reported on the error stream, and the run goes on; what `store` raises comes through. Of a file no more is
/// read than the `size` of the memory in bytes can take.
void loadMemoryImages(const Component& memory, std::string_view className, std::uint32_t size, const Circuit& owner,
                      const StoreByte& store);

/// A part with a memory that images are loaded into: when the file of its circuit is read, at the start of each run,
/// and whenever parameters are applied to it in a circuit.
template <class Base>
class ImageMemory : public Base, public MemoryInterface {
public:
    using Base::Base;

    void onLoaded(Circuit* owner) override { load(owner); }
    void start(Time /*endTime*/) override { load(this->getParent()); }
    void applyParameters() override { load(this->getParent()); }

private:
    /// Reads the part's own parameters and, if there is an owner, the images.
    virtual void load(const Circuit* owner) = 0;
};

}  // namespace tarnsim
