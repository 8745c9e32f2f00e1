using System;
using System.IO;
using System.Reflection;

/// Lets one process of the validator look at many packages: nine tenths of what one look costs is its start.
///
/// The runtime calls it ahead of the program that DOTNET_STARTUP_HOOKS is set for. A line in is a package, the line out its report.
internal class StartupHook
{
    public static void Initialize()
    {
        var program = Assembly.GetEntryAssembly().EntryPoint;
        var packages = new StreamReader(Console.OpenStandardInput());
        var reports = new StreamWriter(Console.OpenStandardOutput());
        for (string package; (package = packages.ReadLine()) != null; reports.Flush())
        {
            var report = new StringWriter();
            Console.SetOut(report);
            var code = (int)program.Invoke(null, new object[] { new[] { package } });
            if (code != 0)
                Environment.Exit(code);
            reports.WriteLine(report.ToString().Replace('\n', ' '));
        }
        Environment.Exit(0);
    }
}
