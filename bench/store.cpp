// The text store and the history by themselves, without a terminal: what one key, one paste, one
// save costs in the middle of texts of 100 MB, beside the same in a small one.
#include <benchmark/benchmark.h>

#include <string>

#include "editor/history.h"
#include "editor/reader.h"
#include "editor/sheet.h"
#include "editor/state.h"

using namespace tarn;

namespace {

constexpr int64_t big = 100'000'000;

enum TextKind : int64_t { small, manylines, oneline, sameletter };

Str textof(int64_t kind) {
  if (kind == small) return Str("one\ntwo\n");
  Str text = strsized(big);
  uint8_t* out = text.own();
  for (int64_t i = 0; i < big; i++) {
    bool end = kind == manylines && i % 50 == 49;
    out[i] = end ? 10 : kind == sameletter ? 'x' : static_cast<uint8_t>('a' + i * 7 % 26);
  }
  return text;
}

// A current buffer over a text of the kind that the benchmark names, its point in the middle.
struct Bench {
  Bench(const benchmark::State& state) {
    currentname = "/bench";
    openrecord(currentname);
    sheets[currentname] = sheetnew(textof(state.range(0)));
    middle();
  }
  ~Bench() { closefile("/bench"); }
  sheet& s() { return currentsheet(); }
  void middle() { s().point = static_cast<int32_t>(size(s()) / 2); }
};

void kinds(benchmark::internal::Benchmark* b) {
  b->ArgNames({"text"});
  for (int64_t kind : {small, manylines, oneline, sameletter}) b->Arg(kind);
}

void typebytes(benchmark::State& state) {
  Bench bench(state);
  for (auto _ : state) opinsert('x');
}
BENCHMARK(typebytes)->Apply(kinds)->Iterations(1000);

void typeandundo(benchmark::State& state) {
  Bench bench(state);
  for (auto _ : state) {
    opinsert('x');
    editback();
  }
}
BENCHMARK(typeandundo)->Apply(kinds)->Iterations(1000);

void overwriteandback(benchmark::State& state) {
  Bench bench(state);
  bench.s().insertmode = 0;
  for (auto _ : state) {
    opinsert('!');
    opbackspace();
    bench.middle();
  }
}
BENCHMARK(overwriteandback)->Apply(kinds)->Iterations(1000);

// A hundred thousand bytes typed one by one, the time of one of them.
void typemany(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    Bench* bench = new Bench(state);
    state.ResumeTiming();
    for (int i = 0; i < 100000; i++) {
      opinsert(i % 50 == 49 ? 10 : static_cast<uint8_t>('a' + i % 26));
    }
    state.PauseTiming();
    delete bench;
    state.ResumeTiming();
  }
  state.counters["perbyte"] = benchmark::Counter(
      100000, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(typemany)->Apply(kinds)->Unit(benchmark::kMillisecond);

void cutandundo(benchmark::State& state) {
  Bench bench(state);
  for (auto _ : state) {
    sheet& s = bench.s();
    opdelete(stretch(s, s.point, lineend(s, s.point) + (state.range(0) == small)));
    editback();
    bench.middle();
  }
}
BENCHMARK(cutandundo)->Apply(kinds);

void bothendsandback(benchmark::State& state) {
  Bench bench(state);
  for (auto _ : state) {
    bench.s().point = 0;
    opinsert('x');
    bench.s().point = static_cast<int32_t>(size(bench.s()));
    opinsert('y');
    editback();
    editback();
  }
}
BENCHMARK(bothendsandback)->Apply(kinds)->Iterations(1000);

void startofline(benchmark::State& state) {
  Bench bench(state);
  for (auto _ : state) benchmark::DoNotOptimize(linestart(bench.s(), bench.s().point));
}
BENCHMARK(startofline)->Apply(kinds);

void endofline(benchmark::State& state) {
  Bench bench(state);
  for (auto _ : state) benchmark::DoNotOptimize(lineend(bench.s(), bench.s().point));
}
BENCHMARK(endofline)->Apply(kinds);

void readall(benchmark::State& state) {
  Bench bench(state);
  for (auto _ : state) {
    reader r = readsheet(bench.s());
    int64_t n = size(bench.s());
    int64_t sum = 0;
    for (int64_t i = 0; i < n; i++) sum += readbyte(r, i);
    benchmark::DoNotOptimize(sum);
  }
  state.SetBytesProcessed(state.iterations() * size(bench.s()));
}
BENCHMARK(readall)->Apply(kinds);

}  // namespace

BENCHMARK_MAIN();
