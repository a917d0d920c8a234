run("${BUILD}/consumer" "${BUILD}/visits.ini")
