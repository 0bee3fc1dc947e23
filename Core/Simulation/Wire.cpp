#include "Core/Simulation/Wire.h"

#include <algorithm>
#include <utility>

#include "Core/Simulation/Bus.h"
#include "Core/Simulation/Net.h"
#include "Core/Simulation/Port.h"

namespace tarnsim {

Wire::Wire(EventSimulator& simulator, const Members& members)
    : simulator_(simulator),
      listeners_(members.listeners.data()),
      ports_(members.ports.data()),
      nets_(members.nets.data()),
      listenerCount_(static_cast<std::uint32_t>(members.listeners.size())),
      portCount_(static_cast<std::uint32_t>(members.ports.size())),
      netCount_(static_cast<std::uint32_t>(members.nets.size())),
      passesZ_(members.passesZ),
      driver_(members.driver) {}

void Wire::join(const std::shared_ptr<void>& owner) {
    const std::shared_ptr<ValueRecords> records(owner, &records_);
    // The nets first: a port asks its net whether it is on this wire, too.
    for (Net* net : nets()) net->joinWire(this, records);
    for (Port* port : ports()) port->joinWire(this, records);
}

bool Wire::passes(std::string_view letters) const {
    return std::ranges::all_of(letters, [this](char letter) { return passes(letter); });
}

void Wire::set(std::string_view letters, Time time) {
    const char* before = records_.lettersInForceAt(time);
    const bool isChange = before == nullptr ? letters.find_first_not_of(kUndefinedBit) != std::string_view::npos
                                            : letters != std::string_view(before, letters.size());
    records_.store(time, letters);
    if (isChange) notify(time);
}

void Wire::cut() {
    if (Bus* bus = std::exchange(bus_, nullptr)) return bus->cut();
    for (Port* port : ports()) port->leaveWire();
    for (Net* net : nets()) net->leaveWire();
    listenerCount_ = portCount_ = netCount_ = 0;
    driver_ = nullptr;
}

}  // namespace tarnsim
