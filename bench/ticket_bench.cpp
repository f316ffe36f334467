// Read and write times of the library beside the Xerces-C floor, for the
// example tickets and for generated tickets of growing size. The run ends
// with a table of the ratios, the time per page range and the peak heap of
// a read.
#include <benchmark/benchmark.h>
#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <unistd.h>

#include "support/heap_counter.h"
#include "support/ticket_generator.h"
#include "xerces_floor.h"
#include "zundo.h"

namespace {

const int kSizes[] = {1, 10, 100, 1000, 10000};
// Per-page-range read time may grow by at most this factor from
// kLinearFrom page ranges to the largest size.
const int kLinearFrom = 100;
const double kLinearLimit = 2.0;

struct Sample {
    std::string label;
    int pageRanges = 0;
    std::string text;                                 // what the read benchmarks read
    zundo_int_object_s *ticket = nullptr;             // what the write benchmarks write
    std::unique_ptr<xercesc::XercesDOMParser> written;  // the DOM of the written text

    Sample() = default;
    Sample(const Sample &) = delete;
    Sample &operator=(const Sample &) = delete;
    ~Sample() {
        if (ticket != nullptr) destroy(ticket);
    }
};

int countValues(zundo_int_object_s *object, const char *name) {
    zundo_int_attribute_s *attribute = get(object, name);
    if (attribute == nullptr) return 0;
    int count = getNumValues(attribute);
    destroyAttribute(attribute);
    return count;
}

int pageRangesOf(zundo_int_object_s *ticket) {
    zundo_int_object_s *job = getJob(ticket);
    int count = countValues(job, "job-page-ranges");
    zundo_int_object_s **documents = getDocuments(job);
    for (int d = 0; documents != nullptr && documents[d] != nullptr; d++)
        count += countValues(documents[d], "document-page-ranges");
    return count;
}

// Completes a sample that has its ticket: the DOM of its written text.
bool parseWritten(Sample &sample) {
    char *text = nullptr;
    zundo_status_t status = writeJobTicketString(sample.ticket, &text);
    if (status != ZUNDO_OK) {
        std::fprintf(stderr, "%s: writing failed with status %d\n", sample.label.c_str(), status);
        return false;
    }
    sample.written = floorParse(text);
    releaseJobTicketString(text);
    if (!sample.written) {
        std::fprintf(stderr, "%s: the written text does not parse\n", sample.label.c_str());
        return false;
    }
    return true;
}

std::unique_ptr<Sample> exampleSample(const std::filesystem::path &path) {
    auto sample = std::make_unique<Sample>();
    sample->label = path.stem().string();
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    sample->text = content.str();
    zundo_result_t result = newJobTicketInfoFromString(&sample->ticket, sample->text.c_str());
    if (result.status != ZUNDO_OK) {
        std::fprintf(stderr, "%s: reading failed with status %d\n", path.c_str(), result.status);
        return nullptr;
    }
    sample->pageRanges = pageRangesOf(sample->ticket);
    return parseWritten(*sample) ? std::move(sample) : nullptr;
}

std::unique_ptr<Sample> generatedSample(int pageRanges) {
    auto sample = std::make_unique<Sample>();
    sample->label = std::to_string(pageRanges);
    sample->pageRanges = pageRanges;
    zundo_status_t status = newGeneratedTicket(&sample->ticket, shapeForPageRanges(pageRanges));
    char *text = nullptr;
    if (status == ZUNDO_OK) status = writeJobTicketString(sample->ticket, &text);
    if (status != ZUNDO_OK) {
        std::fprintf(stderr, "generated ticket of %d page ranges: status %d\n", pageRanges,
                     status);
        return nullptr;
    }
    sample->text = text;
    releaseJobTicketString(text);
    return parseWritten(*sample) ? std::move(sample) : nullptr;
}

std::vector<std::unique_ptr<Sample>> loadSamples() {
    std::vector<std::filesystem::path> examples;
    std::error_code error;
    for (const auto &entry : std::filesystem::directory_iterator(ZUNDO_EXAMPLES_DIR, error))
        if (entry.path().extension() == ".jdf") examples.push_back(entry.path());
    std::sort(examples.begin(), examples.end());
    if (examples.empty())
        std::printf("No examples/*.jdf: the small generated tickets stand in for them.\n");

    std::vector<std::unique_ptr<Sample>> samples;
    for (const auto &path : examples)
        if (auto sample = exampleSample(path)) samples.push_back(std::move(sample));
    for (int size : kSizes)
        if (auto sample = generatedSample(size)) samples.push_back(std::move(sample));
    return samples;
}

void readTicket(benchmark::State &state, const Sample *sample) {
    for (auto _ : state) {
        zundo_int_object_s *ticket = nullptr;
        if (newJobTicketInfoFromString(&ticket, sample->text.c_str()).status != ZUNDO_OK) {
            state.SkipWithError("the ticket does not read");
            break;
        }
        destroy(ticket);
    }
}

void parseFloor(benchmark::State &state, const Sample *sample) {
    for (auto _ : state) {
        if (!floorParse(sample->text)) {
            state.SkipWithError("the ticket does not parse");
            break;
        }
    }
}

void writeTicket(benchmark::State &state, const Sample *sample) {
    for (auto _ : state) {
        char *text = nullptr;
        if (writeJobTicketString(sample->ticket, &text) != ZUNDO_OK) {
            state.SkipWithError("the ticket does not write");
            break;
        }
        releaseJobTicketString(text);
    }
}

void serialiseFloor(benchmark::State &state, const Sample *sample) {
    for (auto _ : state) {
        if (floorSerialise(sample->written->getDocument()) == 0) {
            state.SkipWithError("the document does not serialise");
            break;
        }
    }
}

const char kRead[] = "read/";
const char kParse[] = "xerces_parse/";
const char kWrite[] = "write/";
const char kSerialise[] = "xerces_serialise/";

void registerBenchmarks(const std::vector<std::unique_ptr<Sample>> &samples) {
    for (const auto &sample : samples) {
        const Sample *s = sample.get();
        for (auto *benchmark :
             {benchmark::RegisterBenchmark((kRead + s->label).c_str(), readTicket, s),
              benchmark::RegisterBenchmark((kParse + s->label).c_str(), parseFloor, s),
              benchmark::RegisterBenchmark((kWrite + s->label).c_str(), writeTicket, s),
              benchmark::RegisterBenchmark((kSerialise + s->label).c_str(), serialiseFloor, s)})
            benchmark->Unit(benchmark::kMicrosecond);
    }
}

// Prints the usual console output and keeps each benchmark's wall time per
// iteration in microseconds (the mean when repetitions are asked for).
class TableReporter : public benchmark::ConsoleReporter {
public:
    TableReporter() : ConsoleReporter(isatty(fileno(stdout)) ? OO_Color : OO_None) {}

    void ReportRuns(const std::vector<Run> &runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run &run : runs) {
            if (run.error_occurred) continue;
            bool mean = run.run_type == Run::RT_Aggregate && run.aggregate_name == "mean";
            if (run.run_type != Run::RT_Iteration && !mean) continue;
            microseconds[run.run_name.function_name] =
                run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit) * 1e6;
        }
    }

    // Negative when the benchmark did not run.
    double time(const char *kind, const Sample &sample) const {
        auto found = microseconds.find(kind + sample.label);
        return found == microseconds.end() ? -1.0 : found->second;
    }

private:
    std::map<std::string, double> microseconds;
};

std::string cell(double value, const char *format) {
    if (value < 0) return "-";
    char text[32];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

double ratio(double a, double b) { return a < 0 || b <= 0 ? -1.0 : a / b; }

double perRange(double time, const Sample &sample) {
    return time < 0 || sample.pageRanges == 0 ? -1.0 : time / sample.pageRanges;
}

// Peak heap growth of one call, in KiB.
template <typename Call>
double peakKiB(Call call) {
    heapCountStart();
    call();
    return heapCountStop() / 1024.0;
}

double readPeak(const Sample &sample) {
    return peakKiB([&] {
        zundo_int_object_s *ticket = nullptr;
        if (newJobTicketInfoFromString(&ticket, sample.text.c_str()).status == ZUNDO_OK)
            destroy(ticket);
    });
}

double floorPeak(const Sample &sample) {
    return peakKiB([&] { floorParse(sample.text); });
}

void printTable(const std::vector<std::unique_ptr<Sample>> &samples,
                const TableReporter &times) {
    std::printf("\nzundo against the Xerces-C floor: wall time per call, ratio = zundo / floor,\n"
                "peak heap growth during one read (every allocation of the process)\n\n");
    std::printf("%-12s %7s %10s %6s %10s %6s %9s %9s %10s %10s\n", "ticket", "ranges",
                "read us", "ratio", "write us", "ratio", "read/rng", "write/rng", "read KiB",
                "floor KiB");
    for (const auto &s : samples) {
        double read = times.time(kRead, *s);
        double write = times.time(kWrite, *s);
        std::printf("%-12s %7d %10s %6s %10s %6s %9s %9s %10s %10s\n", s->label.c_str(),
                    s->pageRanges, cell(read, "%.1f").c_str(),
                    cell(ratio(read, times.time(kParse, *s)), "%.2f").c_str(),
                    cell(write, "%.1f").c_str(),
                    cell(ratio(write, times.time(kSerialise, *s)), "%.2f").c_str(),
                    cell(perRange(read, *s), "%.2f").c_str(),
                    cell(perRange(write, *s), "%.2f").c_str(),
                    cell(readPeak(*s), "%.0f").c_str(), cell(floorPeak(*s), "%.0f").c_str());
    }

    const Sample *from = nullptr;
    const Sample *to = nullptr;
    for (const auto &s : samples) {
        if (s->label == std::to_string(kLinearFrom)) from = s.get();
        if (s->label == std::to_string(kSizes[std::size(kSizes) - 1])) to = s.get();
    }
    if (from == nullptr || to == nullptr) return;
    double growth = ratio(perRange(times.time(kRead, *to), *to),
                          perRange(times.time(kRead, *from), *from));
    if (growth < 0) return;
    std::printf("\nRead time per page range, %s against %s page ranges: %.2fx (%s %.0fx)\n",
                to->label.c_str(), from->label.c_str(), growth,
                growth <= kLinearLimit ? "within" : "BEYOND", kLinearLimit);
}

}  // namespace

int main(int argc, char **argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    std::vector<std::unique_ptr<Sample>> samples = loadSamples();
    if (samples.empty()) return 1;
    registerBenchmarks(samples);
    TableReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    printTable(samples, reporter);
    benchmark::Shutdown();
    return 0;
}
