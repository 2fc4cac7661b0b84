// SPDX-License-Identifier: MIT
#include "Support/Comparison.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <map>

namespace Bench
{

namespace
{

std::string Format(const char* Pattern, double Value)
{
	char Buffer[64];
	std::snprintf(Buffer, sizeof(Buffer), Pattern, Value);
	return Buffer;
}

/** Times of one contender in seconds. */
struct FTimes
{
	std::vector<double> Seconds;

	double Median() const
	{
		std::vector<double> Sorted = Seconds;
		std::sort(Sorted.begin(), Sorted.end());
		return Sorted[Sorted.size() / 2];
	}
	double Best() const { return *std::min_element(Seconds.begin(), Seconds.end()); }
};

/** Keeps the time of each repetition by the benchmark's name and shows the progress. */
class FCollector : public benchmark::BenchmarkReporter
{
public:
	bool ReportContext(const Context&) override { return true; }
	void ReportRuns(const std::vector<Run>& Runs) override
	{
		for (const Run& Each : Runs)
		{
			if (Each.run_type == Run::RT_Iteration && !Each.error_occurred)
			{
				Times[Each.run_name.function_name].Seconds.push_back(
					Each.real_accumulated_time / static_cast<double>(Each.iterations));
			}
		}
		std::fputc('.', stderr);
	}
	void Finalize() override { std::fputc('\n', stderr); }

	std::map<std::string, FTimes> Times;
};

std::string NameOf(std::size_t Comparison, std::size_t Contender)
{
	return std::to_string(Comparison) + "-" + std::to_string(Contender);
}

void Time(benchmark::State& State, const FContender& Contender)
{
	for (auto Iteration : State)
	{
		(void)Iteration;
		const auto Start = std::chrono::steady_clock::now();
		Contender.Run();
		const std::chrono::duration<double> Taken = std::chrono::steady_clock::now() - Start;
		State.SetIterationTime(Taken.count());
		if (Contender.Release)
		{
			Contender.Release();
		}
	}
}

/** Which rivals ours is held against. */
bool IsDemanded(const FComparison& Comparison, std::size_t Index, const std::vector<double>& Medians)
{
	if (Comparison.Contenders[Index].Required <= 0)
	{
		return false;
	}
	for (std::size_t Other = 1; Comparison.bFasterRivalCounts && Other < Medians.size(); ++Other)
	{
		if (Comparison.Contenders[Other].Required > 0 && Medians[Other] < Medians[Index])
		{
			return false;
		}
	}
	return true;
}

std::string TableOf(const FComparison& Comparison, std::size_t Number, const std::map<std::string, FTimes>& Times)
{
	for (std::size_t Index = 0; Index < Comparison.Contenders.size(); ++Index)
	{
		if (!Times.contains(NameOf(Number, Index)))
		{
			return Comparison.Title + ": not all contenders were run\n\n";
		}
	}
	std::vector<double> Medians;
	for (std::size_t Index = 0; Index < Comparison.Contenders.size(); ++Index)
	{
		Medians.push_back(Times.at(NameOf(Number, Index)).Median());
	}
	std::string Text = "### " + Comparison.Title + "\n\n| | median ms | best ms | million " + Comparison.Unit +
					   "/s | ours is times as fast | required |\n|---|---:|---:|---:|---:|---|\n";
	for (std::size_t Index = 0; Index < Comparison.Contenders.size(); ++Index)
	{
		const FContender& Contender = Comparison.Contenders[Index];
		const double Ratio = Medians[Index] / Medians[0];
		Text += "| " + Contender.Name + " | " + Format("%.2f", Medians[Index] * 1e3) + " | " +
				Format("%.2f", Times.at(NameOf(Number, Index)).Best() * 1e3) + " | " +
				Format("%.2f", Comparison.Items / Medians[Index] * 1e-6) + " | ";
		if (Index > 0)
		{
			Text += Format("**%.2f**", Ratio);
		}
		Text += " | ";
		if (Index > 0 && IsDemanded(Comparison, Index, Medians))
		{
			Text += Format("%.2f: ", Contender.Required) + (Ratio >= Contender.Required ? "met" : "NOT met");
		}
		Text += " |\n";
	}
	for (const std::string& Sentence : Comparison.Skipped)
	{
		Text += "\nSkipped: " + Sentence + "\n";
	}
	return Text + "\n";
}

std::string LineOf(const FFigure& Figure)
{
	std::string Text = "- " + Figure.Title + ": " + Format("%.2f", Figure.Value) + " " + Figure.Unit;
	if (Figure.Limit > 0)
	{
		Text += Format(" (at most %.2f: ", Figure.Limit) + (Figure.Value <= Figure.Limit ? "met)" : "NOT met)");
	}
	return Text + "\n";
}

} // namespace

void FSuite::Add(FComparison&& Comparison)
{
	Comparisons.push_back(std::move(Comparison));
}

void FSuite::Add(FFigure&& Figure)
{
	Figures.push_back(std::move(Figure));
}

void FSuite::Later(std::function<FFigure()>&& Figure)
{
	LaterFigures.push_back(std::move(Figure));
}

void FSuite::Skip(const std::string& Sentence)
{
	Skips.push_back(Sentence);
}

void FSuite::Fail(const std::string& Sentence)
{
	Failures.push_back(Sentence);
}

bool FSuite::Run(int Repetitions)
{
	if (!Failures.empty())
	{
		for (const std::string& Sentence : Failures)
		{
			Text += "Results differ: " + Sentence + "\n\n";
		}
		return false;
	}
	for (std::size_t Number = 0; Number < Comparisons.size(); ++Number)
	{
		for (std::size_t Index = 0; Index < Comparisons[Number].Contenders.size(); ++Index)
		{
			const FContender& Contender = Comparisons[Number].Contenders[Index];
			benchmark::RegisterBenchmark(
				NameOf(Number, Index).c_str(), [&Contender](benchmark::State& State) { Time(State, Contender); })
				->Iterations(1)
				->Repetitions(Repetitions)
				->UseManualTime();
		}
	}
	FCollector Collector;
	benchmark::RunSpecifiedBenchmarks(&Collector);
	for (std::size_t Number = 0; Number < Comparisons.size(); ++Number)
	{
		Text += TableOf(Comparisons[Number], Number, Collector.Times);
	}
	for (const std::function<FFigure()>& Figure : LaterFigures)
	{
		Figures.push_back(Figure());
	}
	for (const FFigure& Figure : Figures)
	{
		Text += LineOf(Figure);
	}
	for (const std::string& Sentence : Skips)
	{
		Text += "- Skipped: " + Sentence + "\n";
	}
	Text += Figures.empty() && Skips.empty() ? "" : "\n";
	return true;
}

} // namespace Bench
