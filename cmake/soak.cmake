# The soak run's judge is tested on made-up samples in every build. The two-minute soak itself
# runs the built program under churn and judges it by its memory, so the sanitizer build, whose
# program is several times larger and keeps freed memory in quarantine, leaves it out.
if(TINDRA_BUILD_TESTS)
  add_test(NAME soak.Judge
    COMMAND /usr/bin/python3 "${PROJECT_SOURCE_DIR}/scripts/soak_judge_test.py")
  set_tests_properties(soak.Judge PROPERTIES LABELS "soak" TIMEOUT 60)
  if(NOT TINDRA_SANITIZE)
    add_test(NAME soak.Short
      COMMAND "${PROJECT_SOURCE_DIR}/scripts/soak" --minutes 2
        --out "${PROJECT_BINARY_DIR}/soak/short" --build "${PROJECT_BINARY_DIR}")
    set_tests_properties(soak.Short PROPERTIES LABELS "soak" TIMEOUT 240 SKIP_RETURN_CODE 77)
  endif()
endif()
