#pragma once

#include "core/outcome.h"
#include "gsp/training.h"

#include <QString>
#include <QVariantList>

// Shared by the plan and record operations; not part of the module's interface.
namespace medistock::gsp {

inline constexpr int planRight = 12; // "员工培训计划"
inline constexpr int recordRight = 13; // "员工培训记录"

namespace detail {

// The typed texts cleaned and checked (required fields, widths, the planned or held date); the
// refusal text, or empty.
QString cleanPlan(Plan &plan);
QString cleanTraining(Training &training);

// The right of plans or of records, then what was typed cleaned and checked; a refusal is told.
Outcome admitPlan(const shell::Session &session, Plan &plan);
Outcome admitTraining(const shell::Session &session, Training &training);

// The values in column order: u_pxzt,u_pxmd,u_pxnr,u_dd,u_js,u_ydsj,u_pxdx,u_khfs,u_pxfs,u_bz.
QVariantList planValues(const Plan &plan);
// u_pxsj,u_pxbx,u_khjg,u_cj,u_pdr,u_bz.
QVariantList trainingValues(const Training &training);

} // namespace detail

} // namespace medistock::gsp
