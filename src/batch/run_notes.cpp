#include "batch/run_notes.h"

#include <string>

#include "common/text_constants.h"

namespace kelvo {

void PrintRunNotes(TextWriter& out) {
    out.line("  ");
    out.line("       본 프로그램은 좌표변환프로그램 Kelvo " + std::string(AppVersion) + " 이다.");
    out.line("  ");
    out.line("베셀 경위도 <-> 직교좌표로의 변환은 어느 프로그램에서도 거의 같은 해가 나온다.");
    out.line("그러나 WGS<->베셀경위도 변환은 변환파라미터에 따라 그 결과가 차이가 나며 여러");
    out.line("연구자에 따라서 다르다.");
    out.line(
        "최근에 근교부에서 작성한 측량작업규정에 파라미터가 있지만 모든 지역에서 다 맞지않다 ");
    out.line("특히 표고의 경우는 지오이드고를 어떻게 계산하는가에 따라서 차이가 난다. ");
    out.line("  ");
    out.line("본 프로그램에서는 지역별 차이가 나는 것을 보정하기 위하여 WGS와 베셀경위도 두가지가");
    out.line("있는 기지점데이터를 사용하고 있다. 따라서 구하고자 하는 점 가까이 확실한 기지점이");
    out.line("있으면 차이가 많이 줄어들 수 있다.");
    out.line(" ");
    out.line("본 프로그램은 여러 기존의 데이터에 대하여 계산결과를 확인하여 에러를 제거 하였지만 ");
    out.line("계산결과에 대하여는 각 사용자가 체크할 책임이 있다. ");
    out.line("  ");
}

}  // namespace kelvo
