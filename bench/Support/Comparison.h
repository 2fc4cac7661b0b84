// SPDX-License-Identifier: MIT
/** One task done by several, timed in turn and printed as ratios. */
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace Bench
{

/** Somebody who does the task. */
struct FContender
{
	std::string Name;
	/** Does the task once; the only part that is timed. */
	std::function<void()> Run;
	/** Releases what Run made, after the time was taken; may be empty. */
	std::function<void()> Release;
	/** How many times as fast as this rival ours has to be; 0 when it is shown without a demand. */
	double Required = 0;
};

/** A task. The first contender is ours; all of them do the same work, which was compared before. */
struct FComparison
{
	std::string Title;
	/** What one run processes, for the rate: so many Units. */
	double Items = 0;
	std::string Unit;
	std::vector<FContender> Contenders;
	/** Rivals that cannot be asked here, each a sentence. */
	std::vector<std::string> Skipped;
	/** Only the fastest of the rivals with a demand counts. */
	bool bFasterRivalCounts = false;
};

/** A number that has no rival, held against a limit. */
struct FFigure
{
	std::string Title;
	double Value = 0;
	std::string Unit;
	/** The most that it may be; 0 when it is only shown. */
	double Limit = 0;
};

/** What a subject has to measure. */
class FSuite
{
public:
	void Add(FComparison&& Comparison);
	void Add(FFigure&& Figure);
	/** A figure that comes about when the comparisons have run. */
	void Later(std::function<FFigure()>&& Figure);
	/** Names something that cannot be measured here, and why. */
	void Skip(const std::string& Sentence);
	/** Results of contenders differ: nothing is timed, and the program fails. */
	void Fail(const std::string& Sentence);

	/** So many rounds over all contenders in random order, then the tables. @return whether all results agreed */
	bool Run(int Repetitions);
	/** The tables as Markdown. */
	const std::string& Tables() const { return Text; }

private:
	std::vector<FComparison> Comparisons;
	std::vector<FFigure> Figures;
	std::vector<std::function<FFigure()>> LaterFigures;
	std::vector<std::string> Skips;
	std::vector<std::string> Failures;
	std::string Text;
};

} // namespace Bench
