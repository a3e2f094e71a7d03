// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>

#include "model/ByteStream.h"
#include "model/Pattern.h"

namespace zol {

/// What stands open on the grid: a pattern file, an unsaved pattern, a pattern of a library, a
/// stitched font. Commands, undo and auto-save know no more of it than this.
class OpenDesign {
public:
    struct Question {
        std::string Text;
        std::string Title;
    };

    OpenDesign() = default;
    virtual ~OpenDesign() = default;
    OpenDesign(const OpenDesign&) = delete;
    OpenDesign& operator=(const OpenDesign&) = delete;

    /// What the grid shows. The address stays as long as the design stands open.
    [[nodiscard]] virtual Pattern& GetPattern() = 0;
    [[nodiscard]] virtual const Pattern& GetPattern() const = 0;

    /// What stands behind the program's title and " - " in the window's title.
    [[nodiscard]] virtual std::string WindowTitle() const = 0;
    /// What is asked before changes would be lost.
    [[nodiscard]] virtual Question SaveQuestion() const = 0;
    /// Whether Save knows where to; otherwise a name has to be chosen first.
    [[nodiscard]] virtual bool HasPlace() const = 0;
    /// Saves it to where it came from. 0 or a run-time error number.
    [[nodiscard]] virtual int Save() = 0;

    /// The kind's letter in a recovery file: "P" for a pattern, "F" for a stitched font.
    [[nodiscard]] virtual char RecoveryKind() const = 0;
    /// The name that a recovery file keeps; empty without a file.
    [[nodiscard]] virtual std::string FileName() const = 0;
    /// Writes the whole design at the stream's place, for snapshots and recovery; its name and
    /// whether it counts as changed stay. 0 or a run-time error number.
    [[nodiscard]] virtual int WriteTo(ByteWriter& stream) = 0;
    /// Takes back what WriteTo wrote at the stream's place; the name stays. After a failure the
    /// design is as it was. 0 or a run-time error number.
    [[nodiscard]] virtual int ReadFrom(ByteReader& stream) = 0;
};

/// Holds what stands open; there is always something.
class DesignHolder {
public:
    explicit DesignHolder(std::unique_ptr<OpenDesign> design) : m_design(std::move(design)) {}

    [[nodiscard]] OpenDesign& Get() { return *m_design; }
    [[nodiscard]] const OpenDesign& Get() const { return *m_design; }
    [[nodiscard]] Pattern& Design() { return m_design->GetPattern(); }
    void Put(std::unique_ptr<OpenDesign> design) { m_design = std::move(design); }

private:
    std::unique_ptr<OpenDesign> m_design;
};

} // namespace zol
