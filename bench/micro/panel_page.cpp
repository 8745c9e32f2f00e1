#include "panels/panel_page.h"

#include <benchmark/benchmark.h>

/// What a click in an options dialog composes anew.
static void aPanelPageIsComposed(benchmark::State& state) {
    for (auto _ : state) {
        panels::ActionPanel panel;
        panel.message = "12 object(s) will be pasted to \rBoard deck.pptx\ras Pictures";
        panel.kind = "info";
        panel.destinationWord = "PowerPoint";
        panel.options = panels::OptionsBlockHtml(
            "", panels::OptionRowHtml("slideTitle", "Use captions as slide title", true, true) +
                    panels::OptionRowHtml("sourceInc", "Include source file", false, true));
        panel.tools = panels::ToolBarHtml(
            panels::ToolButtonHtml("style", "Style", "tool-icon-style", "Apply a style"));
        benchmark::DoNotOptimize(panels::BuildActionPanelHtml(panel));
    }
}
BENCHMARK(aPanelPageIsComposed);
