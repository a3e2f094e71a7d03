// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// What bench/processes needs beside the programs that it compares: the scene and its flosses as
// files, the bare encoding of a picture, and figures of whole processes.

#include <QBuffer>
#include <QFile>
#include <QImage>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <string>
#include <vector>

#include "Scene.h"
#include "grid/painting/PaintColors.h"
#include "model/SafeFile.h"

namespace zol {

namespace {

using Words = std::vector<std::string>;

void Ensure(bool done, const std::string& what) {
    if (!done) {
        throw std::runtime_error(what);
    }
}

void WriteScene(const Words& words) {
    ProgramContext context;
    Pattern pattern(context);
    FillScene(pattern);
    Ensure(pattern.Save(PathOf(words.at(0))) == 0, "cannot write the scene");
}

/// The flosses of a pattern as a picture with a pixel for each.
void WritePalette(const Words& words) {
    ProgramContext context;
    Pattern pattern(context);
    Ensure(pattern.Load(PathOf(words.at(0))) == 0, "cannot read the pattern");
    const int flosses = pattern.GetPalette().GetEntriesCount();
    QImage image(flosses, 1, QImage::Format_RGB32);
    for (int i = 1; i <= flosses; ++i) {
        image.setPixel(i - 1, 0, ToRgb(pattern.GetPalette().GetFlossRGB(i)));
    }
    Ensure(image.save(QString::fromStdString(words.at(1))), "cannot write the palette");
}

/// A picture's bare pixels, behind its width and height.
void WriteRaw(const Words& words) {
    const QImage image =
        QImage(QString::fromStdString(words.at(0))).convertToFormat(QImage::Format_RGB32);
    QFile file(QString::fromStdString(words.at(1)));
    Ensure(!image.isNull() && file.open(QIODevice::WriteOnly), "cannot turn the picture into raw");
    const std::array<int, 2> size{image.width(), image.height()};
    file.write(reinterpret_cast<const char*>(size.data()), sizeof size);
    file.write(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
}

/// The floor of a render: raw pixels become a PNG as the program writes one.
void Encode(const Words& words) {
    QFile file(QString::fromStdString(words.at(0)));
    std::array<int, 2> size{};
    Ensure(file.open(QIODevice::ReadOnly) &&
               file.read(reinterpret_cast<char*>(size.data()), sizeof size) == sizeof size,
           "cannot read the raw picture");
    QImage image(size[0], size[1], QImage::Format_RGB32);
    file.read(reinterpret_cast<char*>(image.bits()), image.sizeInBytes());
    QBuffer buffer;
    Ensure(buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "PNG"), "cannot encode");
    const QByteArray& bytes = buffer.data();
    Ensure(SafeFile::Replace(PathOf(words.at(1)),
                             {reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                              static_cast<std::size_t>(bytes.size())}) == 0,
           "cannot write the picture");
}

struct Figures {
    double milliseconds = 0; ///< on the wall
    double processor = 0;    ///< milliseconds of all its threads
    double megabytes = 0;    ///< most that it held
};

double Milliseconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) * 1e-3;
}

Figures Run(const Words& words) {
    std::vector<char*> arguments;
    for (const std::string& word : words) {
        arguments.push_back(const_cast<char*>(word.c_str()));
    }
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    const auto begin = std::chrono::steady_clock::now();
    pid_t child = 0;
    Ensure(posix_spawnp(&child, arguments[0], &actions, nullptr, arguments.data(), environ) == 0,
           "cannot start " + words.at(0));
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    const std::chrono::duration<double, std::milli> passed =
        std::chrono::steady_clock::now() - begin;
    posix_spawn_file_actions_destroy(&actions);
    Ensure(WIFEXITED(status) && WEXITSTATUS(status) == 0, words.at(0) + " has failed");
    return {passed.count(), Milliseconds(usage.ru_utime) + Milliseconds(usage.ru_stime),
            static_cast<double>(usage.ru_maxrss) / 1024};
}

struct Series {
    std::vector<double> wall;
    std::vector<double> processor;

    void Add(const Figures& figures) {
        wall.push_back(figures.milliseconds);
        processor.push_back(figures.processor);
    }
};

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// race ROUNDS WORK... -- FLOOR...: both by turns; the ratios of the medians.
void Race(const Words& words) {
    const int rounds = std::stoi(words.at(0));
    const auto middle = std::find(words.begin(), words.end(), "--");
    Ensure(middle != words.end(), "race needs two commands");
    const Words work(words.begin() + 1, middle);
    const Words floor(middle + 1, words.end());
    Series works;
    Series floors;
    for (int round = 0; round < rounds; ++round) {
        floors.Add(Run(floor));
        works.Add(Run(work));
    }
    std::printf("%.2f (%.0f ms to %.0f ms; of processor time %.2f, %.0f ms to %.0f ms)\n",
                Median(works.wall) / Median(floors.wall), Median(works.wall), Median(floors.wall),
                Median(works.processor) / Median(floors.processor), Median(works.processor),
                Median(floors.processor));
}

/// peak COMMAND...: the most memory that it held.
void Peak(const Words& words) {
    const Figures figures = Run(words);
    std::printf("%.1f MB (%.0f ms)\n", figures.megabytes, figures.milliseconds);
}

struct Task {
    const char* Name;
    void (*Run)(const Words& words);
};
constexpr std::array tasks{Task{"scene", WriteScene}, Task{"palette", WritePalette},
                           Task{"raw", WriteRaw},     Task{"encode", Encode},
                           Task{"race", Race},        Task{"peak", Peak}};

int Main(const Words& words) {
    try {
        for (const Task& task : tasks) {
            if (words.at(0) == task.Name) {
                task.Run({words.begin() + 1, words.end()});
                return 0;
            }
        }
        throw std::runtime_error("unknown task " + words[0]);
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "bench-aid: %s\n", fault.what());
        return 1;
    }
}

} // namespace

} // namespace zol

int main(int argc, char** argv) {
    return zol::Main({argv + 1, argv + argc});
}
