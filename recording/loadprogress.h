// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

#include <atomic>
#include <functional>

// How far a load is, and whether it is to be given up: between the thread that loads and one that
// looks on, each of which may call any of this at any moment. The loading thread sees what was done
// before the restart, and who sees that a load has ended sees what it has loaded: the toolkit's
// queue, which hands the two over, orders that, too, but not for the thread sanitizer.
class LoadProgress {
public:
    enum class Stage { Reading, Phasors };
    struct alignas(8) Place { // in one piece for all compilers
        Stage stage;
        float done; // part of this stage alone, 0 to 1
    };

    void restart(); // before a load
    void end(); // after it
    bool hasEnded() const;
    void cancel();
    bool isCancelled() const;
    void look() const; // throws an Interruption where the load is cancelled

    void setPlace(Place place);
    Place place() const;

private:
    std::atomic<Place> m_place{Place{Stage::Reading, 0}};
    static_assert(std::atomic<Place>::is_always_lock_free);
    std::atomic<bool> m_isCancelled{false};
    std::atomic<bool> m_hasEnded{false};
};

// A stage of a load, while it lives, in the thread that loads. Whenever work that is counted there
// looks whether it is to end, see interruption.h, the stage says how far it is.
class LoadStage {
public:
    using Amount = std::function<qint64()>;

    // So much is done of a total, in a unit of the stage's own.
    LoadStage(LoadProgress &progress, LoadProgress::Stage stage, qint64 total, Amount done);
    ~LoadStage();
    LoadStage(const LoadStage &) = delete;
    LoadStage &operator=(const LoadStage &) = delete;

    // Of the stage in the calling thread, where there is one: throws an Interruption where its load
    // is cancelled.
    static void look();

private:
    void tell() const;

    LoadProgress &m_progress;
    const LoadProgress::Stage m_stage;
    const qint64 m_total;
    const Amount m_done;
};
