#include "shell/text_journal.h"

#include <chrono>
#include <functional>
#include <utility>

namespace kelvo {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds kPause = 2s;
constexpr std::size_t kMegabyte = 1U << 20U;

std::pair<std::size_t, std::size_t> markOf(const std::string& text) {
    return {text.size(), std::hash<std::string>{}(text)};
}

// Writing a long text takes a moment, in which nobody can type.
std::chrono::milliseconds pauseFor(const std::string& text) {
    return kPause * (1 + text.size() / kMegabyte);
}

}  // namespace

TextJournal::TextJournal(JournalStore& store, Alarm& alarm, Clock& clock, OnView onView)
    : store_(store),
      alarm_(alarm),
      clock_(clock),
      onView_(std::move(onView)),
      inFile_(markOf({})) {}

UnsavedText TextJournal::onView() const {
    UnsavedText text = onView_();
    text.since = clock_.date() + " " + clock_.time();
    return text;
}

bool TextJournal::textIsUnsaved() const {
    return inFile_ != markOf(onView_().text);
}

void TextJournal::isInItsFile() {
    const UnsavedText text = onView_();
    inFile_ = markOf(text.text);
    if (std::exchange(alarmIsSet_, false)) alarm_.cancel();
    store_.clear(JournalStore::Shelf::OnView);
    if (discarded_ && discarded_->text == text.text) {
        discarded_.reset();
        store_.clear(JournalStore::Shelf::Discarded);
    }
}

void TextJournal::changed() {
    if (std::exchange(alarmIsSet_, true)) return;
    alarm_.set(pauseFor(onView_().text), [this] {
        alarmIsSet_ = false;
        if (!keepNow()) changed();
    });
}

bool TextJournal::keepNow() {
    if (textIsUnsaved()) return store_.keep(JournalStore::Shelf::OnView, onView());
    store_.clear(JournalStore::Shelf::OnView);
    return true;
}

bool TextJournal::discard(UnsavedText text) {
    const bool kept = store_.keep(JournalStore::Shelf::Discarded, text);
    discarded_ = std::move(text);
    return kept;
}

void TextJournal::aboutToGo() {
    if (std::exchange(alarmIsSet_, false)) alarm_.cancel();
    if (!textIsUnsaved()) return;
    if (discard(onView())) store_.clear(JournalStore::Shelf::OnView);
    // A panel that is closed still holds the text; it is dealt with.
    inFile_ = markOf(discarded_->text);
}

void TextJournal::lookForOlder() {
    if (std::exchange(lookedForOlder_, true) || discarded_) return;
    const auto older = store_.left(JournalStore::Shelf::Discarded);
    // Those of further programs wait for further starts.
    if (!older.empty() && discard(older.front().text))
        store_.forget(JournalStore::Shelf::Discarded, older.front().name);
}

bool TextJournal::canBringBack() {
    lookForOlder();
    return discarded_.has_value();
}

// Whether it is kept where it stands now.
bool TextJournal::showUnsaved(const UnsavedText& text, const Show& show) {
    show(text);
    inFile_.reset();
    return keepNow();
}

void TextJournal::bringBack(const Show& show) {
    if (!canBringBack()) return;
    const UnsavedText text = *discarded_;
    std::optional<UnsavedText> leaving;
    if (textIsUnsaved() && onView_().text != text.text) leaving = onView();
    const bool kept = showUnsaved(text, show);
    discarded_ = std::move(leaving);
    if (discarded_)
        store_.keep(JournalStore::Shelf::Discarded, *discarded_);
    else if (kept)
        store_.clear(JournalStore::Shelf::Discarded);
}

std::optional<JournalStore::Left> TextJournal::nextWaiting() {
    auto left = store_.left(JournalStore::Shelf::OnView);
    if (left.empty()) return std::nullopt;
    return std::move(left.front());
}

std::optional<UnsavedText> TextJournal::waiting() {
    auto next = nextWaiting();
    if (!next) return std::nullopt;
    return std::move(next->text);
}

void TextJournal::bringBackWaiting(const Show& show) {
    const auto next = nextWaiting();
    if (!next) return;
    aboutToGo();
    if (showUnsaved(next->text, show)) store_.forget(JournalStore::Shelf::OnView, next->name);
}

void TextJournal::putWaitingAside() {
    const auto next = nextWaiting();
    if (next && discard(next->text)) store_.forget(JournalStore::Shelf::OnView, next->name);
}

}  // namespace kelvo
