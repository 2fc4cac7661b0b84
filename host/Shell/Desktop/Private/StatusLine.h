// SPDX-License-Identifier: MIT
/** The line at the foot of a window: the link's address and how it stands. */
#pragma once

#include "Zef/LinkReason.h"

#include <QWidget>

#include <memory>

class QLabel;

namespace Host
{

/** What the line says. */
struct FLinkLine
{
	enum class ELight
	{
		Off,
		Waiting,
		Bad,
		Good
	};

	ELight Light = ELight::Off;
	QString Address;
	QString State;
	/** What to do, in full. */
	QString Advice;

	bool operator==(const FLinkLine&) const = default;
};

class FLinkDoctor;

/**
 * Of the first link of this process, or of the channel that an editor would use when there is none.
 *
 * @param Doctor  asked why nobody answers; null: what the link itself knows is said
 */
FLinkLine DescribeLink(FLinkDoctor* Doctor = nullptr);

class FStatusLine : public QWidget
{
public:
	FStatusLine();
	~FStatusLine() override;

	/** Takes over how the link stands now. Once a frame. */
	void Follow();
	const FLinkLine& Line() const { return Shown; }

private:
	const std::shared_ptr<FLinkDoctor> Doctor;
	FLinkLine Shown;
	QLabel* Light;
	QLabel* Address;
	QLabel* State;
};

} // namespace Host
