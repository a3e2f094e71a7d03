// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>
#include <QThreadPool>

#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

namespace zol {

class ProgressDoor;

/// Work of a window that runs beside it, of which only the latest counts: a newer job cancels the
/// older one, and what an older one still brings is dropped. Belongs to the window's thread, on
/// which everything is delivered; its destruction cancels and waits.
///
/// An older job may still be on its way out while the newer one runs. So work owns what it writes,
/// and what it reads is its own copy or is changed by nobody (as a SharedPicture).
class LatestJob : public QObject {
    Q_OBJECT

public:
    explicit LatestJob(QObject* parent = nullptr);
    ~LatestJob() override;

    /// Runs `work(ProgressDoor&)` on another thread, then `done(result)` on this one unless the job
    /// was cancelled or replaced meanwhile. The work's door says by MayGoOn when it is to stop
    /// early (then it returns what it likes); its status arrives as signals. Both are copied; the
    /// result is moved.
    template<typename Work, typename Done>
    void Start(Work work, Done done) {
        using Result = std::invoke_result_t<Work&, ProgressDoor&>;
        StartErased(
            [work = std::move(work)](ProgressDoor& progress) mutable -> std::shared_ptr<void> {
                return std::make_shared<Result>(work(progress));
            },
            [done = std::move(done)](void* result) mutable {
                done(std::move(*static_cast<Result*>(result)));
            });
    }

    /// The job that runs, if any, brings nothing any more. Returns at once; the work itself ends
    /// when it next asks whether it may go on.
    void Cancel();
    /// Whether something is still to be delivered.
    [[nodiscard]] bool IsRunning() const { return m_run != nullptr; }

Q_SIGNALS:
    /// A job began, also in place of an older one that had not ended.
    void Began();
    /// The work began something of that name; its steps count up to `maximum`.
    void StatusStarted(const QString& text, int maximum);
    void StatusUpdated(int value);
    void StatusStopped();
    /// Nothing runs any more: done (just before the result arrives), failed or cancelled.
    void Ended();
    /// The work threw; the text is the error's own. Comes after Ended.
    void Failed(const QString& text);

protected:
    void customEvent(QEvent* event) override;

private:
    struct Run;
    class Progress;
    class Delivery;
    using Work = std::function<std::shared_ptr<void>(ProgressDoor&)>;
    using Done = std::function<void(void*)>;

    void StartErased(Work work, Done done);
    void Drop();
    void Execute(const std::shared_ptr<Run>& run);
    void Deliver(const std::shared_ptr<Run>& run);
    /// On the window's thread, if the run still counts then. Called on any.
    void Post(const std::shared_ptr<Run>& run, std::function<void()> tell);

    std::shared_ptr<Run> m_run; ///< the one whose outcome counts
    Done m_done;
    QThreadPool m_pool;
};

} // namespace zol
