# SPDX-License-Identifier: MIT
run("${BUILD}/consumer" "${BUILD}/visits.ini")
