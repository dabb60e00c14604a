// ProgressPage
#include "gallery/ProgressPage.h"

#include "formatting/kvStatus.h"
#include "gallery/resource.h"
#include "progress/kvProgressWnd.h"

#include <memory>

namespace {

using Progress = kvProgressWnd;

constexpr int kSteps = 50;
constexpr DWORD kStepMilliseconds = 100;

struct JobRow {
    UINT id;
    Progress::kvpwStopOpt stop;
    Progress::kvpwConfOpt confirmation;
    bool statusBar;
};

const JobRow kJobs[] = {
    {IDC_JOB_STOP_CONFIRM, Progress::kvpwStopButton, Progress::kvpwConfirm, false},
    {IDC_JOB_STOP_AT_ONCE, Progress::kvpwStopButton, Progress::kvpwImmediate, false},
    {IDC_JOB_STOP_DISABLED, Progress::kvpwStopButton, Progress::kvpwStopDisabled, false},
    {IDC_JOB_CANCEL_CONFIRM, Progress::kvpwCancelButton, Progress::kvpwConfirm, false},
    {IDC_JOB_CANCEL_AT_ONCE, Progress::kvpwCancelButton, Progress::kvpwImmediate, false},
    {IDC_JOB_CANCEL_DISABLED, Progress::kvpwCancelButton, Progress::kvpwStopDisabled, false},
    {IDC_JOB_NO_BUTTON, Progress::kvpwNoButton, Progress::kvpwImmediate, false},
    {IDC_JOB_STATUS_BAR, Progress::kvpwNoButton, Progress::kvpwImmediate, true},
};

std::unique_ptr<Progress> MakeProgress(const JobRow& row)
{
    if (row.statusBar)
        return std::make_unique<Progress>("Working", nullptr);
    // A window of one line, shown after half a second.
    return std::make_unique<Progress>("Gallery job", 0.5f, row.stop, true, row.confirmation, 1, 240);
}

// The job: a step every 100 ms while the progress window lets it go on.
int RunJob(Progress& progress)
{
    progress.SetRange(0, kSteps);
    progress.SetStep(1);
    int step = 0;
    for (; step < kSteps && progress.Continue(); ++step) {
        progress.SetText("Step %d of %d", step + 1, kSteps);
        progress.StepIt();
        ::Sleep(kStepMilliseconds);
    }
    return step;
}

}  // namespace

BEGIN_MESSAGE_MAP(ProgressPage, GalleryPage)
    ON_CONTROL_RANGE(BN_CLICKED, IDC_JOB_STOP_CONFIRM, IDC_JOB_STATUS_BAR, OnRunJob)
END_MESSAGE_MAP()

BOOL ProgressPage::Create(CWnd* pParent) { return CDialog::Create(IDD_PROGRESS, pParent); }

void ProgressPage::OnRunJob(UINT nID)
{
    for (const JobRow& row : kJobs) {
        if (row.id != nID)
            continue;
        int steps = 0;
        {
            const std::unique_ptr<Progress> progress = MakeProgress(row);
            steps = RunJob(*progress);
        }
        CString outcome;
        outcome.Format(steps == kSteps ? "The job ran all %d steps." : "The job stopped after %d steps.", steps);
        kvShowStatusMessage(outcome);
    }
}
