// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

namespace Host
{

/** An OpenGL 3.2 core context with no window and no display server behind it. */
class FEglContext
{
public:
	/** @return the context, not current; null with a one-line reason when there is no EGL device for it. */
	static std::unique_ptr<FEglContext> Create(std::string& OutError);
	~FEglContext();
	FEglContext(const FEglContext&) = delete;
	FEglContext& operator=(const FEglContext&) = delete;

	/** @return false when the driver refuses, for instance because the context is current on another thread. */
	bool MakeCurrent();
	void Release();
	bool IsCurrent() const;

private:
	FEglContext() = default;

	// EGL's handles; its header brings in the X types and stays out of this one.
	void* Display = nullptr;
	void* Surface = nullptr;
	void* Context = nullptr;
};

} // namespace Host
