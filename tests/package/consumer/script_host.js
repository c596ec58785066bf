print("of the host: " + report.ColCaption(0));
