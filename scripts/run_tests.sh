# Runs tests and counts them, sourced by test and .ci/run after scripts/prepare.sh.

# CTest runs whole test programs and counts those. This reads its log and tells how many tests passed and failed
# in them; a program that ends without a count of its own is one test.
count_tests() { # LOG
    awk '
        /^[0-9]+\/[0-9]+ Test: / { program = $3; counted = bad = 0 }
        /^\[  PASSED  \] [0-9]+ tests?\.$/ { passed += $4; counted = 1 }
        /^\[  FAILED  \] [0-9]+ tests?, listed below:$/ { failed += $4; bad += $4 }
        /^\[  FAILED  \] [^ ]+\.[^ ]+(,|$)/ && bad { sub(/,$/, "", $4); print "Failed: " $4 " in " program }
        /^Command: ""$/ { failed++; bad = counted = 1; print "Failed: " program " is not built" }
        /^Test Passed\.$/ && !counted { passed++ }
        /^Test Failed\.$/ && !bad { failed++; print "Failed: " program }
        END { print passed + 0 " passed, " failed + 0 " failed" }
    ' "$1"
}

# Ends in a line "N passed, N failed".
run_tests() { # BUILD_FOLDER CTEST_ARGUMENT...
    local folder=$1 status=0
    shift
    export QT_QPA_PLATFORM=offscreen
    ctest --test-dir "$folder" --output-on-failure --test-output-size-failed 10000000 -j2 "$@" || status=$?
    count_tests "$folder/Testing/Temporary/LastTest.log"
    return $status
}
