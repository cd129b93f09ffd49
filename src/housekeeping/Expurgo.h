// The purge at start: old cheques of the log, then old copy files.
#pragma once

namespace nucleo {
class Sistema;
}

namespace housekeeping {

/// Offers to delete the rows of Log older than `PeriodoRelExc` days. A missing store is told.
void ExcluiChequesAntigos(nucleo::Sistema &sistema);
/// Offers to delete the copy files older than `PeriodoCopExc` days.
void ExcluiCopiasAntigas(nucleo::Sistema &sistema);

} // namespace housekeeping
