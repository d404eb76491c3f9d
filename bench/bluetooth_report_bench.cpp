// The Bluetooth report parser beside the JSON read it starts with (ours and simdjson's), on a
// report of a busy desk: 200 paired devices, a few connected, with battery levels and ids.
#include <benchmark/benchmark.h>
#include <simdjson.h>

#include <cstdio>
#include <string>

#include "base/json_reader.h"
#include "power/system_profiler_bluetooth_parser.h"

namespace {

constexpr int deviceCount = 200;

std::string device(int index) {
  char address[18];
  std::snprintf(address, sizeof address, "AC:90:85:0B:%02X:%02X", index / 256, index % 256);
  return std::string(R"({"Device )") + std::to_string(index) + R"(": {"device_address": ")" +
         address +
         R"(", "device_batteryLevelLeft": "80%", "device_batteryLevelRight": "79%",)"
         R"( "device_batteryLevelCase": "45%", "device_firmwareVersion": "6F8",)"
         R"( "device_minorType": "Headphones", "device_productID": "0x2024",)"
         R"( "device_vendorID": "0x004C", "device_services": "0x392019 < HFP AVRCP A2DP AACP >"}})";
}

std::string report() {
  std::string connected, notConnected;
  for (int i = 0; i < deviceCount; ++i) {
    std::string& list = i % 20 == 0 ? connected : notConnected;
    if (!list.empty()) list += ",\n";
    list += device(i);
  }
  return R"({"SPBluetoothDataType": [{"controller_properties": {"controller_state": "on"},)"
         R"( "device_connected": [)" +
         connected + R"(], "device_not_connected": [)" + notConnected + "]}]}";
}

const std::string& sharedReport() {
  static const std::string text = report();
  return text;
}

void JSONReaderOnly(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(tindra::JSONReader::parse(sharedReport()));
  state.SetBytesProcessed(state.iterations() * sharedReport().size());
}

void SimdjsonOnly(benchmark::State& state) {
  simdjson::dom::parser parser;
  const simdjson::padded_string padded(sharedReport());
  for (auto _ : state) benchmark::DoNotOptimize(parser.parse(padded).error());
  state.SetBytesProcessed(state.iterations() * sharedReport().size());
}

void ReportEntries(benchmark::State& state) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(tindra::SystemProfilerBluetoothParser::entries(sharedReport()));
  }
  state.SetBytesProcessed(state.iterations() * sharedReport().size());
}

void ReportAccessories(benchmark::State& state) {
  using tindra::SystemProfilerBluetoothParser;
  for (auto _ : state) {
    const auto entries = SystemProfilerBluetoothParser::entries(sharedReport());
    benchmark::DoNotOptimize(SystemProfilerBluetoothParser::accessories(*entries));
  }
  state.SetBytesProcessed(state.iterations() * sharedReport().size());
}

BENCHMARK(JSONReaderOnly);
BENCHMARK(SimdjsonOnly);
BENCHMARK(ReportEntries);
BENCHMARK(ReportAccessories);

}  // namespace

BENCHMARK_MAIN();
