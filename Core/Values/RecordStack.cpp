#include "Core/Values/RecordStack.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace tarnsim {

namespace {

/// Each letter at its number, so that a letter that is stored as a number can be pointed at.
constexpr std::array<char, 256> kAllLetters = [] {
    std::array<char, 256> letters{};
    for (std::size_t i = 0; i < letters.size(); ++i) letters[i] = static_cast<char>(i);
    return letters;
}();

const char* textOf(char letter) {
    return &kAllLetters[static_cast<std::uint8_t>(letter)];
}

}  // namespace

class RecordStack::Reader {
public:
    Reader(const Unit* units, std::size_t end, Time latest) : units_(units), end_(end), time_(latest) {}

    /// Behind the record's units.
    std::size_t end() const { return end_; }
    Time time() const { return time_; }
    char letter() const { return letterOf(units_[end_ - 1]); }
    void goDown() {
        const Unit top = units_[end_ - 1];
        const std::uint32_t gap =
            isLong(top) ? std::uint32_t{units_[end_ - 3]} << 16U | units_[end_ - 2] : std::uint32_t{top} >> kCodeBits;
        time_ = earlierBy(time_, gap);
        end_ -= isLong(top) ? kLongLength : 1;
    }
    void goDown(std::size_t count) {
        for (; count > 0; --count) goDown();
    }

private:
    const Unit* units_;
    std::size_t end_;
    Time time_;
};

RecordStack::RecordStack(const RecordStack& other) : RecordStack(other.width_) {
    for (std::size_t i = 0; i < other.size(); ++i) push(other.timeOf(i), other.lettersOf(i));
}

RecordStack::Depth& RecordStack::depth() {
    if (!depth_) {
        depth_ = std::make_unique<Depth>();
        depth_->upmost.size = 0;
    }
    return *depth_;
}

const char* RecordStack::topLetters() const {
    if (width_ == 1) return textOf(topLetter());
    return recent_ > 0 ? texts_.top.data() : lettersInChunk(below_ - 1U);
}

void RecordStack::pop() {
    if (width_ != 1) return popText();
    Reader reader(units_.data(), used_, latest_);
    reader.goDown();
    latest_ = reader.time();
    used_ = static_cast<std::uint8_t>(reader.end());
    if (--recent_ == 0 && below_ > 0) restore();
}

void RecordStack::replaceTop(const char* letters) {
    if (width_ != 1) {
        std::copy_n(letters, width_, recent_ > 0 ? texts_.top.data() : lettersInChunk(below_ - 1U));
        return;
    }
    const Time time = latest_;
    pop();
    pushLetter(time, *letters);
}

std::size_t RecordStack::countNotLater(Time time) const {
    if (size() == 0 || latest_ <= time) return size();
    if (width_ != 1) {
        if (recent_ > 1 && texts_.secondTime <= time) return size() - 1;
        return below_ == 0 ? 0 : countInChunksNotLater(time);
    }
    Reader reader(units_.data(), used_, latest_);
    for (std::size_t count = size(); count > below_; --count) {
        if (reader.time() <= time) return count;
        reader.goDown();
    }
    return below_ == 0 ? 0 : findInBlocks(time).count;
}

const char* RecordStack::lettersInForceAt(Time time) const {
    const std::size_t count = countNotLater(time);
    if (count == 0) return nullptr;
    return count == size() ? topLetters() : lettersOf(count - 1);
}

char RecordStack::letterFurtherBackAt(Time time, char none) const {
    bool isInBlocks = false;
    if (below_ > 0) {
        for (const Found& each : depth_->found) {
            if (each.from <= time && time < each.until) return each.letter;
        }
        isInBlocks = depth_->block(depth_->blockCount() - 1).latest >= time;
    }
    if (!isInBlocks) {
        Reader reader(units_.data(), used_, latest_);
        for (std::size_t left = recent_; left > 0; --left) {
            if (reader.time() <= time) return reader.letter();
            reader.goDown();
        }
    }
    if (below_ == 0) return none;
    const Found& found = findInBlocks(time);
    return found.count == 0 ? none : found.letter;
}

Time RecordStack::timeOf(std::size_t i) const {
    if (width_ == 1) return readerAt(i).time();
    if (i < below_) return timeInChunk(i);
    return i + 1 == size() ? latest_ : texts_.secondTime;
}

const char* RecordStack::lettersOf(std::size_t i) const {
    if (width_ == 1) return textOf(readerAt(i).letter());
    if (i < below_) return lettersInChunk(i);
    return i + 1 == size() ? texts_.top.data() : texts_.second.data();
}

void RecordStack::pushLong(std::uint32_t gap, char letter) {
    if (used_ + kLongLength > kUnits) flush();
    units_[used_++] = static_cast<Unit>(gap >> 16U);
    units_[used_++] = static_cast<Unit>(gap);
    units_[used_++] = static_cast<Unit>(static_cast<std::uint8_t>(letter) << kCodeBits | kLong);
}

/// Moves all but the latest few records to a block: whole ones, as many as it takes.
void RecordStack::flush() {
    constexpr std::size_t kKept = 2;
    Reader reader(units_.data(), used_, latest_);
    std::uint8_t kept = 0;
    for (; reader.end() > kBlockUnits || kept < kKept; ++kept) reader.goDown();
    const auto end = static_cast<std::ptrdiff_t>(reader.end());
    Depth& below = depth();
    Slab& slab = below.upmost;
    if (slab.size == Slab::kBlocks) {
        below.slabs.push_back(std::make_unique<const Slab>(slab));
        slab.size = 0;
    }
    below_ += recent_ - kept;
    slab.latest[slab.size] = reader.time();
    slab.end[slab.size] = below_;
    std::copy_n(units_.data(), end, slab.units[slab.size].end() - end);
    ++slab.size;
    std::copy(units_.data() + end, units_.data() + used_, units_.data());
    recent_ = kept;
    used_ = static_cast<std::uint8_t>(used_ - end);
}

/// Takes the upmost block back, when no record is left in the object.
void RecordStack::restore() {
    Slab& slab = depth_->upmost;
    if (slab.size == 0) {
        slab = *depth_->slabs.back();
        depth_->slabs.pop_back();
    }
    const Block block = depth_->block(depth_->blockCount() - 1);
    --slab.size;
    below_ = depth_->blockCount() == 0 ? 0 : depth_->block(depth_->blockCount() - 1).end;
    recent_ = static_cast<std::uint8_t>(block.end - below_);
    latest_ = block.latest;
    Reader reader(block.units, kBlockUnits, block.latest);
    reader.goDown(recent_);
    std::copy(block.units + reader.end(), block.units + kBlockUnits, units_.begin());
    used_ = static_cast<std::uint8_t>(kBlockUnits - reader.end());
    depth_->found = {};
}

RecordStack::Block RecordStack::Depth::block(std::size_t i) const {
    const std::size_t number = i / Slab::kBlocks;
    const Slab& slab = number == slabs.size() ? upmost : *slabs[number];
    const std::size_t place = i % Slab::kBlocks;
    return {slab.units[place].data(), slab.latest[place], slab.end[place]};
}

/// The first block for which `isReached` holds, as it then does for all above; `blockCount()` if there is none.
template <class Predicate>
std::size_t RecordStack::firstBlock(Predicate isReached) const {
    std::size_t begin = 0;
    std::size_t end = depth_->blockCount();
    while (begin < end) {
        const std::size_t middle = begin + (end - begin) / 2;
        if (isReached(depth_->block(middle))) {
            end = middle;
        } else {
            begin = middle + 1;
        }
    }
    return begin;
}

/// The lowest block that reaches to `time`, or else the upmost. REQUIRES: there is one
std::size_t RecordStack::findBlock(Time time) const {
    const std::size_t last = depth_->blockCount() - 1;
    const auto fits = [&](std::size_t i) {
        return i <= last && (i == last || depth_->block(i).latest >= time) &&
               (i == 0 || depth_->block(i - 1).latest < time);
    };
    // Whoever reads on and on through the past, as the table of results does, finds the next record in the block of
    // the last, or beside it.
    std::size_t& found = depth_->lastFound;
    if (fits(found)) return found;
    if (fits(found + 1)) return ++found;
    found = std::min(firstBlock([time](const Block& each) { return each.latest >= time; }), last);
    return found;
}

/// The record in force. REQUIRES: all records in the object are later, and there are blocks
const RecordStack::Found& RecordStack::findInBlocks(Time time) const {
    const std::size_t place = findBlock(time);
    const Block block = depth_->block(place);
    const std::size_t begin = place == 0 ? 0 : depth_->block(place - 1).end;
    Reader reader(block.units, kBlockUnits, block.latest);
    Time until = kLatestTime;
    std::size_t count = block.end;
    for (; count > begin && reader.time() > time; --count) {
        until = reader.time();
        reader.goDown();
    }
    depth_->found[1] = depth_->found[0];
    Found& found = depth_->found[0];
    if (count == 0) {
        found = Found();
    } else if (count == begin) {
        // Behind the lowest of a block the reader still tells the time of the record below.
        found = {reader.time(), until, count, letterOf(depth_->block(place - 1).units[kBlockUnits - 1])};
    } else {
        if (count == block.end) until = readerAt(count).time();
        found = {reader.time(), until, count, reader.letter()};
    }
    return found;
}

RecordStack::Reader RecordStack::readerAt(std::size_t i) const {
    if (i >= below_) {
        Reader reader(units_.data(), used_, latest_);
        reader.goDown(size() - 1 - i);
        return reader;
    }
    const Block block = depth_->block(firstBlock([i](const Block& each) { return each.end > i; }));
    Reader reader(block.units, kBlockUnits, block.latest);
    reader.goDown(block.end - 1 - i);
    return reader;
}

void RecordStack::pushText(Time time, const char* letters) {
    if (width_ > Texts::kLetters) {
        pushToChunk(time, letters);
    } else {
        if (recent_ == 2) pushToChunk(texts_.secondTime, texts_.second.data());
        texts_.second = texts_.top;
        texts_.secondTime = latest_;
        std::memcpy(texts_.top.data(), letters, width_);
        if (recent_ < 2) ++recent_;
    }
    latest_ = time;
}

void RecordStack::popText() {
    if (recent_ == 2) {
        texts_.top = texts_.second;
        latest_ = texts_.secondTime;
        recent_ = 1;
        return;
    }
    // The top is taken from the chunks, or was there.
    if (recent_ == 0) --below_;
    recent_ = 0;
    if (below_ == 0) return;
    latest_ = timeInChunk(below_ - 1U);
    if (width_ > Texts::kLetters) return;
    --below_;
    std::memcpy(texts_.top.data(), lettersInChunk(below_), width_);
    recent_ = 1;
}

void RecordStack::pushToChunk(Time time, const char* letters) {
    const std::size_t length = std::size_t{1} << chunkShift();
    std::vector<std::unique_ptr<char[]>>& chunks = depth().chunks;
    if (below_ == chunks.size() << chunkShift()) {
        chunks.push_back(std::make_unique_for_overwrite<char[]>(length * (sizeof(Time) + width_)));
    }
    char* chunk = chunks[below_ >> chunkShift()].get();
    const std::size_t place = below_ & (length - 1);
    reinterpret_cast<Time*>(chunk)[place] = time;
    std::memcpy(chunk + sizeof(Time) * length + place * width_, letters, width_);
    ++below_;
}

Time RecordStack::timeInChunk(std::size_t i) const {
    const std::size_t mask = (std::size_t{1} << chunkShift()) - 1;
    return reinterpret_cast<const Time*>(depth_->chunks[i >> chunkShift()].get())[i & mask];
}

char* RecordStack::lettersInChunk(std::size_t i) const {
    const std::size_t length = std::size_t{1} << chunkShift();
    return depth_->chunks[i >> chunkShift()].get() + sizeof(Time) * length + (i & (length - 1)) * width_;
}

/// REQUIRES: all records in the object are later, and there are chunks
std::size_t RecordStack::countInChunksNotLater(Time time) const {
    const auto fits = [&](std::size_t count) {
        return count <= below_ && (count == below_ || timeInChunk(count) > time) &&
               (count == 0 || timeInChunk(count - 1) <= time);
    };
    // A part looks back by its delay, seldom behind the last change but one; for the others see findBlock.
    if (fits(below_)) return below_;
    if (fits(below_ - 1U)) return below_ - 1U;
    std::size_t& found = depth_->lastFound;
    if (fits(found)) return found;
    if (fits(found + 1)) return ++found;
    std::size_t begin = 0;
    std::size_t end = below_;
    while (begin < end) {
        const std::size_t middle = begin + (end - begin) / 2;
        if (timeInChunk(middle) > time) {
            end = middle;
        } else {
            begin = middle + 1;
        }
    }
    found = begin;
    return found;
}

}  // namespace tarnsim
