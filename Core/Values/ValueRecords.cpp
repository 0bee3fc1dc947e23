#include "Core/Values/ValueRecords.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace tarnsim {

ValueRecords::Stack::Stack(const Stack& other)
    : recentTimes_(other.recentTimes_),
      recentLetters_(other.recentLetters_),
      recent_(other.recent_),
      width_(other.width_) {
    for (std::size_t i = 0; i < other.inChunks_; ++i) pushToChunk(other.timeInChunk(i), other.lettersInChunk(i));
}

void ValueRecords::Stack::pushToChunk(Time time, const char* letters) {
    const std::size_t length = chunkLength();
    if (inChunks_ == room_) {
        const std::size_t count = room_ / length;
        // The list of chunks has room for a power of two.
        if ((count & (count - 1)) == 0) {
            auto longer = std::make_unique<std::unique_ptr<char[]>[]>(count == 0 ? 1 : 2 * count);
            std::move(chunks_.get(), chunks_.get() + count, longer.get());
            chunks_ = std::move(longer);
        }
        chunks_[count] = std::make_unique_for_overwrite<char[]>(length * (sizeof(Time) + width_));
        room_ += static_cast<std::uint32_t>(length);
    }
    char* chunk = chunks_[inChunks_ / length].get();
    const std::size_t place = inChunks_ % length;
    reinterpret_cast<Time*>(chunk)[place] = time;
    std::memcpy(chunk + sizeof(Time) * length + place * width_, letters, width_);
    ++inChunks_;
}

void ValueRecords::Stack::flush() {
    // All but the last two, which parts look back at.
    constexpr std::size_t kKept = 2;
    for (std::size_t i = 0; i + kKept < recent_; ++i) pushToChunk(recentTimes_[i], &recentLetters_[i]);
    for (std::size_t i = 0; i < kKept; ++i) {
        recentTimes_[i] = recentTimes_[recent_ - kKept + i];
        recentLetters_[i] = recentLetters_[recent_ - kKept + i];
    }
    recent_ = kKept;
}

template <class Predicate>
std::size_t ValueRecords::Stack::search(std::size_t begin, std::size_t end, Predicate isBehind) const {
    while (begin < end) {
        const std::size_t middle = begin + (end - begin) / 2;
        if (isBehind(timeInChunk(middle))) {
            end = middle;
        } else {
            begin = middle + 1;
        }
    }
    return begin;
}

std::size_t ValueRecords::Stack::countNotLater(Time time) const {
    const std::size_t recent = countRecentNotLater(time);
    return recent > 0 ? inChunks_ + recent : countInChunksNotLater(time);
}

std::size_t ValueRecords::Stack::countInChunksNotLater(Time time) const {
    const std::size_t size = inChunks_;
    if (size == 0 || timeInChunk(size - 1) <= time) return size;
    // A part looks back by its delay, seldom behind the last change but one. Whoever reads on and on through the past,
    // as the table of results does, and parts on a clock that was laid down for the whole run, find the next record
    // beside the last.
    if (size > 1 && timeInChunk(size - 2) <= time) return size - 1;
    const auto fits = [&](std::size_t count) {
        return count < size && timeInChunk(count) > time && (count == 0 || timeInChunk(count - 1) <= time);
    };
    std::size_t count = lastFound_;
    if (!fits(count) && !fits(++count)) count = search(0, size, [time](Time each) { return each > time; });
    lastFound_ = static_cast<std::uint32_t>(count);
    return count;
}

std::size_t ValueRecords::Stack::countLater(Time time) const {
    const std::size_t count = search(0, inChunks_, [time](Time each) { return each <= time; });
    if (count < inChunks_) return count;
    const auto* recent = recentTimes_.data();
    const auto* found = std::partition_point(recent, recent + recent_, [time](Time each) { return each > time; });
    return count + static_cast<std::size_t>(found - recent);
}

ValueRecords::ValueRecords(const ValueRecords& other) : before_(other.before_) {
    if (other.behind_) behind_ = std::make_unique<Stack>(*other.behind_);
}

void ValueRecords::clear() {
    before_ = Stack();
    behind_.reset();
}

void ValueRecords::moveTop(Stack& from, Stack& to) {
    const std::size_t top = from.size() - std::size_t{1};
    to.push(from.timeOf(top), from.lettersOf(top));
    from.pop();
}

void ValueRecords::moveGapTo(Time time) {
    while (before_.size() > 0 && before_.topTime() > time) {
        if (!behind_) behind_ = std::make_unique<Stack>(before_.width());
        moveTop(before_, *behind_);
    }
    while (countBehind() > 0 && behind_->topTime() <= time) moveTop(*behind_, before_);
}

void ValueRecords::storeAnywhere(Time time, std::string_view letters) {
    if (empty()) {
        before_ = Stack(letters.size());
        behind_.reset();
    }
    moveGapTo(time);
    if (before_.size() > 0 && before_.topTime() == time) before_.pop();
    before_.push(time, letters.data());
}

std::optional<std::size_t> ValueRecords::inForceAt(Time time) const {
    std::size_t count = before_.size();
    if (count > 0 && before_.topTime() > time) {
        count = before_.countNotLater(time);
    } else if (countBehind() > 0) {
        count += behind_->size() - behind_->countLater(time);
    }
    if (count == 0) return std::nullopt;
    return count - 1;
}

std::size_t ValueRecords::firstFrom(Time time) const {
    const auto record = inForceAt(time);
    if (!record) return 0;
    return timeOf(*record) == time ? *record : *record + 1;
}

}  // namespace tarnsim
