#pragma once

/// No image of the process on the disk when it crashes: its memory holds client data, and such files stay where nobody
/// looks for them. To be called first in `main`; what the system refuses stays as it is.
void verhindereSpeicherabbilder();
