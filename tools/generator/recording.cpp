#include "recording.h"

#include "sensors.h"
#include "textfile.h"

namespace
{
// South-west of a lonely skerry, over 60 m of water.
constexpr double START_LATITUDE = 59.062;
constexpr double START_LONGITUDE = -4.455;
// Metres, and what one degree has of them there.
constexpr double METRES_LATITUDE = 111396.0;
constexpr double METRES_LONGITUDE = 57380.0;
constexpr int START_HOUR = 9;

double latitude(double north)
{
    return START_LATITUDE + north / METRES_LATITUDE;
}

double longitude(double east)
{
    return START_LONGITUDE + east / METRES_LONGITUDE;
}

void writeVector(TextFile& file, const Vector3& vector)
{
    file.Value(vector.x);
    file.Value(vector.y);
    file.Value(vector.z);
}

void writeReading(TextFile& file, const Reading& reading)
{
    writeVector(file, reading.acceleration);
    writeVector(file, reading.compass);
    file.Value(reading.depth);
}

void writeWhole(TextFile& file, std::int64_t number)
{
    file.Value(double(number), 0);
}

struct Clock {
    std::int64_t hour;
    std::int64_t minute;
    std::int64_t second;
};

Clock clockAt(std::int64_t second)
{
    return {(START_HOUR + second / 3600) % 24, second / 60 % 60, second % 60};
}

// Writes a line for each unbroken run of rows with the same name; rows count from 1.
class LabelFile
{
public:
    explicit LabelFile(const std::string& path) : m_File(path) {}

    /// name is empty for a row without a label.
    void Row(std::int64_t row, std::string_view name)
    {
        if (name == m_Name)
            return;
        endRun(row - 1);
        m_Name = name;
        m_From = row;
    }

    bool Close(std::int64_t lastRow)
    {
        endRun(lastRow);
        return m_File.Close();
    }

private:
    void endRun(std::int64_t to)
    {
        if (m_Name.empty())
            return;
        m_File.Value(m_Name);
        writeWhole(m_File, m_From);
        writeWhole(m_File, to);
        m_File.EndLine();
    }

    TextFile m_File;
    std::string_view m_Name;
    std::int64_t m_From = 0;
};

// All files of the example, fed with the same moments.
class Example
{
public:
    explicit Example(const RecordingOptions& options)
        : m_Rate(options.rate), m_Recording(options.folder + "/recording.csv"),
          m_Labels(options.folder + "/labels.txt"), m_Strikes(options.folder + "/strikes.txt"),
          m_Gps(options.folder + "/gps.csv"), m_GpsClock(options.folder + "/gps_clock.csv"),
          m_Path(options.folder + "/path.csv")
    {
        m_Recording.Text("Acc_X,Acc_Y,Acc_Z,Comp_X,Comp_Y,Comp_Z,TG_Presure,Hour,Minute,Second\n");
        m_Gps.Text("time,latitude,longitude,altitude_m,accuracy_m,speed_m_s,row,"
                   "GPS_Hour,GPS_Min,GPS_Sec\n");
        m_GpsClock.Text("GPS_Hour,GPS_Min,GPS_Sec,GPS_HDOP,GPS_Latitude,GPS_Longitude,"
                        "GPS_Altitude,GPS_Valid,GPS_No_Satellites\n");
        m_Path.Text("time,latitude,longitude,depth_m,heading_deg,speed_m_s,pitch_deg,roll_deg\n");
    }

    /// index counts from 0.
    void Row(std::int64_t index, const Moment& moment, const Reading& reading)
    {
        const Clock clock = clockAt(index / m_Rate);
        writeReading(m_Recording, reading);
        writeWhole(m_Recording, clock.hour);
        writeWhole(m_Recording, clock.minute);
        m_Recording.Value(double(clock.second) + double(index % m_Rate) / m_Rate);
        m_Recording.EndLine();
        m_Labels.Row(index + 1, BehaviourName(moment.behaviour));
        m_Strikes.Row(index + 1, moment.strike ? "strike" : "");
    }

    void PathPoint(std::int64_t index, const Moment& moment)
    {
        writeWhole(m_Path, index / m_Rate);
        m_Path.Value(latitude(moment.north), 7);
        m_Path.Value(longitude(moment.east), 7);
        for (const double value :
             {moment.depth, moment.heading, moment.speed, moment.pitch, moment.roll})
            m_Path.Value(value, 2);
        m_Path.EndLine();
    }

    void Fix(std::int64_t index, const GpsFix& fix)
    {
        const Clock clock = clockAt(index / m_Rate);
        writeWhole(m_Gps, index / m_Rate);
        m_Gps.Value(latitude(fix.north), 7);
        m_Gps.Value(longitude(fix.east), 7);
        for (const double value : {fix.altitude, fix.accuracy, fix.speed})
            m_Gps.Value(value, 1);
        writeWhole(m_Gps, index + 1);
        writeClock(m_Gps, clock);
        m_Gps.EndLine();

        writeClock(m_GpsClock, clock);
        m_GpsClock.Value(fix.accuracy / 3, 1);
        m_GpsClock.Value(latitude(fix.north), 7);
        m_GpsClock.Value(longitude(fix.east), 7);
        m_GpsClock.Value(fix.altitude, 1);
        writeWhole(m_GpsClock, 1);
        writeWhole(m_GpsClock, fix.satellites);
        m_GpsClock.EndLine();
    }

    bool Close(std::int64_t rows)
    {
        bool good = m_Labels.Close(rows) && m_Strikes.Close(rows);
        for (TextFile* file : {&m_Recording, &m_Gps, &m_GpsClock, &m_Path})
            good = file->Close() && good;
        return good;
    }

private:
    static void writeClock(TextFile& file, const Clock& clock)
    {
        for (const std::int64_t value : {clock.hour, clock.minute, clock.second})
            writeWhole(file, value);
    }

    int m_Rate;
    TextFile m_Recording;
    LabelFile m_Labels;
    LabelFile m_Strikes;
    TextFile m_Gps;
    TextFile m_GpsClock;
    TextFile m_Path;
};
} // namespace

bool WriteExample(const RecordingOptions& options)
{
    Random random(options.seed);
    Random receiverRandom(options.seed + 1);
    Bird bird(random, options.rate);
    Logger logger(random, options.rate);
    GpsReceiver receiver(receiverRandom);
    Example example(options);
    for (std::int64_t index = 0; index < options.rows; ++index) {
        const Moment& moment = bird.Step();
        example.Row(index, moment, logger.Read(moment));
        if (index % options.rate != 0)
            continue;
        example.PathPoint(index, moment);
        if (const auto fix = receiver.Fix(moment))
            example.Fix(index, *fix);
    }
    return example.Close(options.rows);
}

bool WritePlain(const RecordingOptions& options)
{
    Random random(options.seed);
    Bird bird(random, options.rate);
    Logger logger(random, options.rate);
    TextFile file(options.folder + "/recording.csv");
    file.Text("Acc_X,Acc_Y,Acc_Z,Comp_X,Comp_Y,Comp_Z,TG_Presure,Temperature,Speed\n");
    for (std::int64_t index = 0; index < options.rows; ++index) {
        const Moment& moment = bird.Step();
        const Reading reading = logger.Read(moment);
        writeReading(file, reading);
        file.Value(reading.temperature);
        file.Value(moment.speed);
        file.EndLine();
    }
    return file.Close();
}
