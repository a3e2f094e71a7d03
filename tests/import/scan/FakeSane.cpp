// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT
//
// A library with SANE's operations, for the tests to load in its place.

#include "import/scan/FakeSane.h"

#include <algorithm>
#include <cstring>
#include <memory>

using zol::test::FakeOption;
using zol::test::FakeSane;

namespace {

std::unique_ptr<FakeSane> g_fake;              // NOLINT: a library of C has nothing else
std::vector<const SANE_Device*> g_list;        // NOLINT
std::vector<SANE_Option_Descriptor> g_options; // NOLINT
std::vector<SANE_Word> g_words;                // NOLINT
std::vector<const char*> g_texts;              // NOLINT
std::size_t g_frame = 0;                       // NOLINT
std::size_t g_place = 0;                       // NOLINT

FakeSane& Fake() {
    if (!g_fake) {
        g_fake = std::make_unique<FakeSane>();
    }
    return *g_fake;
}

void NoteThread() {
    const std::lock_guard lock(Fake().Mutex);
    Fake().Threads.insert(std::this_thread::get_id());
}

void HangIn(FakeSane::Place place) {
    FakeSane& fake = Fake();
    std::unique_lock lock(fake.Mutex);
    if (fake.HangsIn == place) {
        fake.IsHanging = true;
        fake.Changed.notify_all();
        fake.Changed.wait(lock, [&fake, place] { return fake.HangsIn != place; });
        fake.IsHanging = false;
    }
}

SANE_Status SetOption(FakeOption& option, const void* value) {
    if (option.Type == SANE_TYPE_STRING) {
        option.Text = static_cast<const char*>(value);
        Fake().Sets.push_back(option.Name + "=" + option.Text);
    } else {
        std::memcpy(&option.Word, value, sizeof option.Word);
        Fake().Sets.push_back(option.Name + "=" + std::to_string(option.Word));
    }
    return SANE_STATUS_GOOD;
}

SANE_Status GetOption(const FakeOption& option, void* value) {
    if (option.Type == SANE_TYPE_STRING) {
        std::memcpy(value, option.Text.c_str(), option.Text.size() + 1);
    } else {
        std::memcpy(value, &option.Word, sizeof option.Word);
    }
    return SANE_STATUS_GOOD;
}

} // namespace

extern "C" {

/// A fresh one for the next test.
FakeSane* fake_sane() {
    g_fake = std::make_unique<FakeSane>();
    return g_fake.get();
}

SANE_Status sane_init(SANE_Int* version, SANE_Auth_Callback /*authorize*/) {
    NoteThread();
    *version = Fake().Version;
    const std::lock_guard lock(Fake().Mutex);
    Fake().Inits += Fake().OfInit == SANE_STATUS_GOOD ? 1 : 0;
    return Fake().OfInit;
}

void sane_exit() {
    NoteThread();
    const std::lock_guard lock(Fake().Mutex);
    ++Fake().Exits;
    Fake().Changed.notify_all();
}

SANE_Status sane_get_devices(const SANE_Device*** list, SANE_Bool /*localOnly*/) {
    NoteThread();
    HangIn(FakeSane::Place::GetDevices);
    g_list.clear();
    for (const SANE_Device& device : Fake().Devices) {
        g_list.push_back(&device);
    }
    g_list.push_back(nullptr);
    *list = g_list.data();
    return Fake().OfGetDevices;
}

SANE_Status sane_open(SANE_String_Const /*name*/, SANE_Handle* handle) {
    NoteThread();
    const std::lock_guard lock(Fake().Mutex);
    *handle = &Fake();
    Fake().Opens += Fake().OfOpen == SANE_STATUS_GOOD ? 1 : 0;
    g_frame = 0;
    return Fake().OfOpen;
}

void sane_close(SANE_Handle /*handle*/) {
    NoteThread();
    const std::lock_guard lock(Fake().Mutex);
    ++Fake().Closes;
    Fake().Changed.notify_all();
}

const SANE_Option_Descriptor* sane_get_option_descriptor(SANE_Handle /*handle*/, SANE_Int number) {
    NoteThread();
    static SANE_Option_Descriptor descriptor;
    const FakeOption& option = Fake().Options.at(static_cast<std::size_t>(number - 1));
    descriptor = {};
    descriptor.name = option.Name.empty() ? nullptr : option.Name.c_str();
    descriptor.type = option.Type;
    descriptor.unit = option.Unit;
    descriptor.size = option.Size;
    descriptor.cap = option.Cap;
    if (option.Range) {
        descriptor.constraint_type = SANE_CONSTRAINT_RANGE;
        descriptor.constraint.range = &*option.Range;
    } else if (!option.Words.empty()) {
        g_words = option.Words;
        g_words.insert(g_words.begin(), static_cast<SANE_Word>(option.Words.size()));
        descriptor.constraint_type = SANE_CONSTRAINT_WORD_LIST;
        descriptor.constraint.word_list = g_words.data();
    } else if (!option.Texts.empty()) {
        g_texts = option.Texts;
        g_texts.push_back(nullptr);
        descriptor.constraint_type = SANE_CONSTRAINT_STRING_LIST;
        descriptor.constraint.string_list = g_texts.data();
    }
    return &descriptor;
}

SANE_Status sane_control_option(SANE_Handle /*handle*/, SANE_Int number, SANE_Action action,
                                void* value, SANE_Int* /*info*/) {
    NoteThread();
    if (number == 0) {
        const auto count = static_cast<SANE_Int>(Fake().Options.size() + 1);
        std::memcpy(value, &count, sizeof count);
        return SANE_STATUS_GOOD;
    }
    FakeOption& option = Fake().Options.at(static_cast<std::size_t>(number - 1));
    return action == SANE_ACTION_SET_VALUE ? SetOption(option, value) : GetOption(option, value);
}

SANE_Status sane_get_parameters(SANE_Handle /*handle*/, SANE_Parameters* parameters) {
    NoteThread();
    const std::size_t frame = g_frame == 0 ? 0 : g_frame - 1;
    if (frame >= Fake().Frames.size()) {
        return SANE_STATUS_INVAL;
    }
    std::memcpy(parameters, &Fake().Frames[frame].Parameters, sizeof *parameters);
    return SANE_STATUS_GOOD;
}

SANE_Status sane_start(SANE_Handle /*handle*/) {
    NoteThread();
    ++Fake().Starts;
    ++g_frame;
    g_place = 0;
    return g_frame > Fake().Frames.size() ? SANE_STATUS_NO_DOCS : Fake().OfStart;
}

SANE_Status sane_read(SANE_Handle /*handle*/, SANE_Byte* data, SANE_Int room, SANE_Int* length) {
    NoteThread();
    FakeSane& fake = Fake();
    const zol::test::FakeFrame& frame = fake.Frames[g_frame - 1];
    *length = 0;
    if (fake.EmptyReads > 0) {
        --fake.EmptyReads;
        return SANE_STATUS_GOOD;
    }
    const std::size_t count =
        std::min(frame.Bytes.size() - g_place, static_cast<std::size_t>(room));
    if (count == 0) {
        const SANE_Status end = frame.End;
        const int cancels = fake.Cancels;
        HangIn(FakeSane::Place::Read);
        return fake.Cancels > cancels ? SANE_STATUS_CANCELLED : end;
    }
    std::copy_n(frame.Bytes.begin() + static_cast<std::ptrdiff_t>(g_place), count, data);
    g_place += count;
    *length = fake.ReadLength.value_or(static_cast<SANE_Int>(count));
    return SANE_STATUS_GOOD;
}

void sane_cancel(SANE_Handle /*handle*/) {
    FakeSane& fake = Fake();
    const std::lock_guard lock(fake.Mutex);
    ++fake.Cancels;
    if (fake.CancelLetsGo) {
        fake.HangsIn = FakeSane::Place::Nowhere;
        fake.Changed.notify_all();
    }
}

SANE_String_Const sane_strstatus(SANE_Status /*status*/) {
    return "as SANE calls it";
}

} // extern "C"
