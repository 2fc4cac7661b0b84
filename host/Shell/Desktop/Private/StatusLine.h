// SPDX-License-Identifier: MIT
/** The line at the foot of a window: the link's address and how it stands. */
#pragma once

#include <QWidget>

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

/** Of the links of this process, or of the channel that an editor would use when there is none. */
FLinkLine DescribeLink();

class FStatusLine : public QWidget
{
public:
	FStatusLine();

	/** Takes over how the link stands now. Once a frame. */
	void Follow();
	const FLinkLine& Line() const { return Shown; }

private:
	FLinkLine Shown;
	QLabel* Light;
	QLabel* Address;
	QLabel* State;
};

} // namespace Host
