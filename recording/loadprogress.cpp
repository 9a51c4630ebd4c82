// SPDX-FileCopyrightText: 2026 Norvale
// SPDX-License-Identifier: GPL-3.0-or-later

#include "loadprogress.h"

#include "interruption.h"

#include <algorithm>
#include <utility>

namespace {

thread_local const LoadStage *currentStage = nullptr;

} // namespace

void LoadProgress::restart()
{
    m_place.store({Stage::Reading, 0}, std::memory_order_relaxed);
    m_hasEnded.store(false, std::memory_order_relaxed);
    m_isCancelled.store(false, std::memory_order_release);
}

void LoadProgress::end()
{
    m_hasEnded.store(true, std::memory_order_release);
}

bool LoadProgress::hasEnded() const
{
    return m_hasEnded.load(std::memory_order_acquire);
}

void LoadProgress::cancel()
{
    m_isCancelled.store(true, std::memory_order_release);
}

bool LoadProgress::isCancelled() const
{
    return m_isCancelled.load(std::memory_order_acquire);
}

void LoadProgress::look() const
{
    if (isCancelled())
        throw Interruption();
}

void LoadProgress::setPlace(Place place)
{
    m_place.store(place, std::memory_order_relaxed);
}

LoadProgress::Place LoadProgress::place() const
{
    return m_place.load(std::memory_order_relaxed);
}

LoadStage::LoadStage(LoadProgress &progress, LoadProgress::Stage stage, qint64 total, Amount done)
    : m_progress(progress), m_stage(stage), m_total(total), m_done(std::move(done))
{
    currentStage = this;
    tell();
}

LoadStage::~LoadStage()
{
    currentStage = nullptr;
}

void LoadStage::look()
{
    if (!currentStage)
        return;
    currentStage->m_progress.look();
    currentStage->tell();
}

void LoadStage::tell() const
{
    const double part
        = m_total > 0 ? static_cast<double>(m_done()) / static_cast<double>(m_total) : 0;
    m_progress.setPlace({m_stage, static_cast<float>(std::clamp(part, 0.0, 1.0))});
}
